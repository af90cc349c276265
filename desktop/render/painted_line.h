// SPDX-License-Identifier: MIT
//
// A line of text as pixels, kept: copying them takes a quarter of the time of painting glyphs.
#pragma once

#include <QColor>
#include <QImage>
#include <QPoint>
#include <optional>
#include <string_view>

#include "desktop/uikit/graphics/text_engine.h"

namespace desktop::render {

// How a line is painted. It begins so many quarters of a pixel behind a whole one.
struct LinePaint {
  uikit::FontFace face;
  QRgb color = 0;
  double scale = 1;  // pixels a point
  int quarters = 0;
  bool operator==(const LinePaint&) const = default;
};

struct PaintedLine {
  QImage image;
  QPoint origin;  // of its upper left pixel, from the one on the baseline where the line begins
};

// The line's pixels, remembered for the next time. None for lines that are too long, or too large,
// to be worth it.
std::optional<PaintedLine> paintedLine(const LinePaint& paint, std::u16string_view line);

}  // namespace desktop::render
