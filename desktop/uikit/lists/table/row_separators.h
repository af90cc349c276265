// SPDX-License-Identifier: MIT
//
// The hairlines between the rows of a table.
#pragma once

#include "bridge/geometry.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/color.h"

namespace desktop::uikit {

// Those of one row: which edges have one, and how far the lower one stays from the left.
struct RowSeparators {
  bool above = false;
  bool below = false;
  CGFloat insetBelow = 0;  // points
  Color color = colors::separator;
  bool operator==(const RowSeparators&) const = default;
};

// Those of a table as they are set.
struct TableSeparators {
  bool areShown = true;
  Color color = colors::separator;

  // A grouped section has them around its rows too.
  RowSeparators ofRow(NSInteger row, NSInteger rows, bool isGrouped) const;
};

}  // namespace desktop::uikit
