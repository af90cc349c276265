// SPDX-License-Identifier: MIT
//
// Where labels and picture of a table's cell lie in its content view, by the cell's style.
#pragma once

#include "desktop/uikit/base/geometry.h"

namespace desktop::uikit {

// What there is to place, in points. An empty size stands for something that is not there.
struct CellParts {
  // The platform's: one label; a second at the right edge; in two columns; above each other.
  enum Style : NSInteger { plain = 0, value1 = 1, value2 = 2, subtitle = 3 };
  NSInteger style = plain;
  CGSize content;  // of the content view
  CGFloat rightMargin = 16;
  CGSize image;
  CGSize text;  // as much room as the labels would like
  CGSize detail;
};

struct CellFrames {
  CGRect image;
  CGRect text;
  CGRect detail;
};

// Points are those of the content view. Labels side by side that are wider than their room share
// it: the one that needs less than half of it has all it needs.
CellFrames layOutCell(const CellParts& parts);

// How far labels stay from the left edge, and the hairline below them.
CGFloat cellTextInset(CGSize image);

}  // namespace desktop::uikit
