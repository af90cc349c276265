// SPDX-License-Identifier: MIT
#include "desktop/render/shaped_line.h"

#include <QHash>
#include <QRawFont>
#include <QTextLayout>
#include <cmath>
#include <unordered_map>

#include "desktop/render/qt_fonts.h"
#include "desktop/render/qt_strings.h"

namespace desktop::render {
namespace {

constexpr std::size_t longestRemembered = 256;  // UTF-16 units
constexpr std::size_t rememberedLines = 4096;

struct LineKey {
  uikit::FontFace face;
  std::u16string line;
  bool operator==(const LineKey&) const = default;
};

struct LineKeyHash {
  std::size_t operator()(const LineKey& key) const {
    return std::hash<std::u16string>()(key.line) ^ std::hash<double>()(key.face.size) * 31 ^
           static_cast<std::size_t>(key.face.weight) * 7 ^
           static_cast<std::size_t>(key.face.family) * 3;
  }
};

struct Memory {
  std::unordered_map<LineKey, ShapedLine, LineKeyHash> lines;
  QHash<std::pair<QRawFont, double>, QRawFont> fonts;  // by the design font and the size
};

Memory& memory() {
  static auto& kept = *new Memory;
  return kept;
}

// A font at a size of its own keeps its glyphs' pictures, so there is one for each size.
QRawFont atSize(const QRawFont& design, double size) {
  QHash<std::pair<QRawFont, double>, QRawFont>& fonts = memory().fonts;
  const auto known = fonts.constFind({design, size});
  if (known != fonts.cend()) return *known;
  QRawFont sized = design;
  sized.setPixelSize(size);
  return *fonts.insert({design, size}, sized);
}

QGlyphRun scaled(QGlyphRun run, double size, double baseline) {
  const double scale = size / designSize;
  QList<QPointF> positions = run.positions();
  for (QPointF& position : positions)
    position = QPointF(position.x() * scale, (position.y() - baseline) * scale);
  run.setPositions(positions);
  run.setBoundingRect({});  // the design size's: found anew where it is asked for
  run.setRawFont(atSize(run.rawFont(), size));
  return run;
}

ShapedLine shaped(const uikit::FontFace& face, std::u16string_view line) {
  ShapedLine made;
  if (!(std::isfinite(face.size) && face.size > 0) || line.empty()) return made;
  QTextLayout layout(visibleString(line), designFontOf(face));
  QTextOption option;
  option.setWrapMode(QTextOption::NoWrap);
  option.setFlags(QTextOption::IncludeTrailingSpaces);
  layout.setTextOption(option);
  layout.beginLayout();
  const QTextLine only = layout.createLine();
  layout.endLayout();
  made.width = only.horizontalAdvance() * face.size / designSize;
  const double baseline = only.y() + only.ascent();
  for (const QGlyphRun& run : layout.glyphRuns())
    made.runs.append(scaled(run, face.size, baseline));
  return made;
}

}  // namespace

ShapedLine shapedLine(const uikit::FontFace& face, std::u16string_view line) {
  if (line.size() > longestRemembered) return shaped(face, line);
  auto& lines = memory().lines;
  if (lines.size() >= rememberedLines) lines.clear();
  const auto [known, isNew] = lines.try_emplace({face, std::u16string(line)});
  if (isNew) known->second = shaped(face, line);
  return known->second;
}

void forgetShapedLines() {
  memory() = {};
}

}  // namespace desktop::render
