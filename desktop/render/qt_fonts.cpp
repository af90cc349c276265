// SPDX-License-Identifier: MIT
#include "desktop/render/qt_fonts.h"

#include <QHash>
#include <QRawFont>
#include <algorithm>
#include <cmath>

namespace desktop::render {
namespace {

constexpr double displaySize = 20;  // points from which letters are cut for titles
constexpr double allowance = 0.01;  // of the design size, which a fixed advance may differ by

QFont::Weight weightOf(uikit::FontWeight weight) {
  switch (weight) {
    case uikit::FontWeight::semibold:
      return QFont::DemiBold;
    case uikit::FontWeight::bold:
      return QFont::Bold;
    default:
      return QFont::Normal;
  }
}

QStringList familiesOf(const uikit::FontFace& face) {
  if (face.family == uikit::FontFamily::courier)
    return {QStringLiteral("Nimbus Mono PS"), QStringLiteral("Liberation Mono"),
            QStringLiteral("DejaVu Sans Mono")};
  QStringList families{QStringLiteral("Inter"), QStringLiteral("Liberation Sans")};
  if (face.size >= displaySize) families.prepend(QStringLiteral("Inter Display"));
  return families;
}

QFont made(const uikit::FontFace& face) {
  QFont font;
  font.setFamilies(familiesOf(face));
  const bool isCourier = face.family == uikit::FontFamily::courier;
  font.setStyleHint(isCourier ? QFont::Monospace : QFont::SansSerif);
  font.setWeight(weightOf(face.weight));
  font.setPixelSize(designSize);
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setStyleStrategy(QFont::PreferAntialias);
  return font;
}

double measuredFixedAdvance(const uikit::FontFace& face) {
  const QRawFont font = QRawFont::fromFont(designFontOf(face));
  QString printable;
  for (char16_t unit = u' '; unit <= u'~'; ++unit) printable += QChar(unit);
  const auto advances = font.advancesForGlyphIndexes(font.glyphIndexesForString(printable));
  if (advances.size() != printable.size()) return 0;
  const auto [least, most] =
      std::ranges::minmax(advances, {}, [](const QPointF& advance) { return advance.x(); });
  return most.x() - least.x() <= allowance ? least.x() / designSize : 0;
}

}  // namespace

// Faces differ by little, so that every font is made once.
QFont designFontOf(const uikit::FontFace& face) {
  static auto& fonts = *new QHash<int, QFont>;
  const int key = static_cast<int>(face.family) * 8 + static_cast<int>(face.weight) * 2 +
                  (face.size >= displaySize ? 1 : 0);
  const auto known = fonts.constFind(key);
  return known != fonts.cend() ? *known : *fonts.insert(key, made(face));
}

double fixedAdvanceOf(const uikit::FontFace& face) {
  if (face.family != uikit::FontFamily::courier) return 0;
  static auto& advances = *new QHash<int, double>;
  const int key = static_cast<int>(face.weight);
  const auto known = advances.constFind(key);
  return known != advances.cend() ? *known : *advances.insert(key, measuredFixedAdvance(face));
}

}  // namespace desktop::render
