// SPDX-License-Identifier: MIT
#include "desktop/render/painter_text.h"

#include <cmath>

#include "desktop/render/painted_line.h"
#include "desktop/render/shaped_line.h"

namespace desktop::render {
namespace {

// Whether a line's pixels are those of the line that is only moved and enlarged.
bool isUpright(const QTransform& shown) {
  return shown.type() <= QTransform::TxScale && shown.m11() > 0 && shown.m11() == shown.m22();
}

bool paintKept(QPainter& painter, std::u16string_view line, const uikit::FontFace& face,
               const QColor& color, QPointF baseline) {
  const QTransform shown = painter.worldTransform();
  if (!isUpright(shown)) return false;
  const QPointF at = shown.map(baseline);
  constexpr double farthest = 1e6;  // pixels
  if (!(std::abs(at.x()) < farthest && std::abs(at.y()) < farthest)) return false;
  const int quarters = qRound(at.x() * 4);
  const int left = static_cast<int>(std::floor(quarters / 4.0));
  const auto kept = paintedLine({face, color.rgba(), shown.m11(), quarters - 4 * left}, line);
  if (!kept) return false;
  painter.resetTransform();
  painter.drawImage(QPoint(left, qRound(at.y())) + kept->origin, kept->image);
  painter.setWorldTransform(shown);
  return true;
}

}  // namespace

void paintText(QPainter& painter, std::u16string_view line, const uikit::FontFace& face,
               const QColor& color, QPointF baseline) {
  if (paintKept(painter, line, face, color, baseline)) return;
  painter.setPen(color);
  const ShapedLine shaped = shapedLine(face, line);
  for (const QGlyphRun& run : shaped.runs) painter.drawGlyphRun(baseline, run);
}

}  // namespace desktop::render
