// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>
#include <string_view>

#include "desktop/uikit/graphics/text_engine.h"

namespace desktop::render {

// Paints a line of text that begins at a point of its baseline, in the painter's coordinates.
void paintText(QPainter& painter, std::u16string_view line, const uikit::FontFace& face,
               const QColor& color, QPointF baseline);

}  // namespace desktop::render
