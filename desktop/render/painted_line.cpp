// SPDX-License-Identifier: MIT
//
// Qt blends the edges of glyphs with what is below by a curve that depends on both. So a line is
// painted on what it will most likely stand on, black below light colours and white below dark
// ones, and how much each pixel is covered is read off that; there it looks the same to the bit.
#include "desktop/render/painted_line.h"

#include <QPainter>
#include <unordered_map>

#include "desktop/render/shaped_line.h"

namespace desktop::render {
namespace {

constexpr std::size_t longestKept = 64;  // in UTF-16 units
constexpr int mostPixels = 1 << 17;      // of one line
constexpr qsizetype mostBytes = 16 << 20;

struct PaintedKey {
  LinePaint paint;
  std::u16string line;
  bool operator==(const PaintedKey&) const = default;
};

struct PaintedKeyHash {
  std::size_t operator()(const PaintedKey& key) const {
    const LinePaint& paint = key.paint;
    return std::hash<std::u16string>()(key.line) ^ std::hash<double>()(paint.face.size) * 31 ^
           std::hash<double>()(paint.scale) * 7 ^ std::size_t{paint.color} * 5 ^
           static_cast<std::size_t>(paint.quarters) ^
           static_cast<std::size_t>(paint.face.weight) * 11 ^
           static_cast<std::size_t>(paint.face.family) * 3;
  }
};

struct KeptPixels {
  std::unordered_map<PaintedKey, PaintedLine, PaintedKeyHash> lines;
  qsizetype bytes = 0;
};

KeptPixels& keptPixels() {
  static auto& kept = *new KeptPixels;
  return kept;
}

// What the glyphs may cover, in whole pixels from the one where the line begins.
QRect placeOf(const ShapedLine& shaped, const LinePaint& paint) {
  constexpr int margin = 2;  // edges are softened
  QRectF covered;
  for (const QGlyphRun& run : shaped.runs) covered |= run.boundingRect();
  const QRectF pixels(covered.topLeft() * paint.scale, covered.size() * paint.scale);
  return pixels.toAlignedRect().adjusted(-margin, -margin, margin + 1, margin);
}

// Black glyphs on white, or white ones on black.
QImage glyphsAlone(const ShapedLine& shaped, const LinePaint& paint, const QRect& place,
                   bool isDark) {
  QImage image(place.size(), QImage::Format_RGB32);
  image.fill(isDark ? Qt::white : Qt::black);
  QPainter painter(&image);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  painter.setPen(isDark ? Qt::black : Qt::white);
  painter.translate(-place.x() + paint.quarters / 4.0, -place.y());
  painter.scale(paint.scale, paint.scale);
  for (const QGlyphRun& run : shaped.runs) painter.drawGlyphRun({0, 0}, run);
  return image;
}

QImage colored(const QImage& glyphs, QRgb color, bool isDark) {
  QImage made(glyphs.size(), QImage::Format_ARGB32_Premultiplied);
  for (int y = 0; y < made.height(); ++y) {
    const auto* from = reinterpret_cast<const QRgb*>(glyphs.constScanLine(y));
    auto* to = reinterpret_cast<QRgb*>(made.scanLine(y));
    for (int x = 0; x < made.width(); ++x) {
      const int light = qGreen(from[x]);
      const int covered = isDark ? 255 - light : light;
      to[x] = qPremultiply((color & 0xFF'FFFF) | static_cast<QRgb>(covered * qAlpha(color) / 255)
                                                     << 24);
    }
  }
  return made;
}

std::optional<PaintedLine> painted(const LinePaint& paint, std::u16string_view line) {
  const ShapedLine shaped = shapedLine(paint.face, line);
  const QRect place = placeOf(shaped, paint);
  if (qint64{place.width()} * place.height() > mostPixels) return {};
  constexpr int middle = 128;
  const bool isDark = qGray(paint.color) < middle;
  return PaintedLine{colored(glyphsAlone(shaped, paint, place, isDark), paint.color, isDark),
                     place.topLeft()};
}

}  // namespace

std::optional<PaintedLine> paintedLine(const LinePaint& paint, std::u16string_view line) {
  if (line.size() > longestKept) return {};
  PaintedKey key{paint, std::u16string(line)};
  auto& [lines, bytes] = keptPixels();
  if (const auto known = lines.find(key); known != lines.end()) return known->second;
  auto made = painted(paint, line);
  if (!made) return {};
  if (bytes > mostBytes) keptPixels() = {};
  bytes += made->image.sizeInBytes();
  return lines.emplace(std::move(key), *std::move(made)).first->second;
}

}  // namespace desktop::render
