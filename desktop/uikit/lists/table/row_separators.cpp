// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/table/row_separators.h"

namespace desktop::uikit {
namespace {

constexpr CGFloat leadingInset = 16;

}  // namespace

RowSeparators TableSeparators::ofRow(NSInteger row, NSInteger rows, bool isGrouped) const {
  const bool isLast = row == rows - 1;
  return {.above = areShown && isGrouped && row == 0,
          .below = areShown,
          .insetBelow = isGrouped && isLast ? 0 : leadingInset,
          .color = color};
}

}  // namespace desktop::uikit
