// SPDX-License-Identifier: MIT
//
// The lines of a label, as plain values: what of its text has room, and where that stands. All
// lengths are in points, places in the label's coordinates.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "desktop/platform.h"
#include "desktop/uikit/text/attributed_text.h"

namespace desktop::uikit {

class Canvas;

// One line as a label paints it.
struct LabelLine {
  std::u16string text;
  FontFace face;
  Color color;
  CGPoint baseline;
};

// How a label shows its text.
struct LabelStyle {
  Color color = colors::black;                    // of text that has none of its own
  std::optional<Color> highlight = std::nullopt;  // of all text, where there is one
  LineBreakMode lineBreakMode = LineBreakMode::byTruncatingTail;
  NSInteger numberOfLines = 1;  // 0: as many as there are
};

// The lines that a label of this size has room for, cut where they are too long. Of a text that is
// too long to be laid out whole, those of them that lie between two heights.
std::vector<LabelLine> labelLines(const SharedText& text, const LabelStyle& style, CGSize size,
                                  double seenTop, double seenBottom);
inline std::vector<LabelLine> labelLines(const SharedText& text, const LabelStyle& style,
                                         CGSize size) {
  return labelLines(text, style, size, 0, size.height);
}

// As wide as the text or as the size, where it has a width; as high as its lines, which have this
// face where there are more than the label may show. In whole pixels.
CGSize labelSize(const SharedText& text, const LabelStyle& style, const FontFace& face,
                 CGSize size);

// Paints the lines of a label with these bounds, and nothing outside.
void drawLabelLines(const std::vector<LabelLine>& lines, CGRect bounds, Canvas& canvas);

}  // namespace desktop::uikit
