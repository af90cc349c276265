// SPDX-License-Identifier: MIT
#include "desktop/render/painter_text.h"

#include "desktop/render/shaped_line.h"

namespace desktop::render {

void paintText(QPainter& painter, std::u16string_view line, const uikit::FontFace& face,
               const QColor& color, QPointF baseline) {
  painter.setPen(color);
  const ShapedLine shaped = shapedLine(face, line);
  for (const QGlyphRun& run : shaped.runs) painter.drawGlyphRun(baseline, run);
}

}  // namespace desktop::render
