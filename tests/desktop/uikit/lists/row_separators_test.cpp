// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/table/row_separators.h"

#include <gtest/gtest.h>

namespace desktop::uikit {
namespace {

TEST(RowSeparators, AGroupHasThemAroundItAndRowsBetween) {
  const TableSeparators separators;
  EXPECT_EQ(separators.ofRow(0, 3, true), (RowSeparators{true, true, 16, colors::separator}));
  EXPECT_EQ(separators.ofRow(1, 3, true), (RowSeparators{false, true, 16, colors::separator}));
  EXPECT_EQ(separators.ofRow(2, 3, true), (RowSeparators{false, true, 0, colors::separator}));
  EXPECT_EQ(separators.ofRow(0, 1, true), (RowSeparators{true, true, 0, colors::separator}));
}

TEST(RowSeparators, APlainTableHasThemBelowItsRows) {
  const TableSeparators red{.color = Color::bytes(255, 0, 0)};
  for (const NSInteger row : {0, 1, 2})
    EXPECT_EQ(red.ofRow(row, 3, false), (RowSeparators{false, true, 16, red.color})) << row;
}

TEST(RowSeparators, ATableMayHaveNone) {
  const TableSeparators none{.areShown = false};
  const RowSeparators lines = none.ofRow(0, 1, true);
  EXPECT_FALSE(lines.above);
  EXPECT_FALSE(lines.below);
}

}  // namespace
}  // namespace desktop::uikit
