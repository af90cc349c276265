// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/grid/grid_metrics.h"

#include <gtest/gtest.h>

namespace desktop::photos_ui {
namespace {

TEST(GridMetrics, HasMoreColumnsInAWiderViewAndCellsOnWholePixels) {
  const struct {
    int columns;
    double heightByWidth;
    CGFloat width, spacing, scale;
    NSInteger expectedColumns;
    CGSize size;
  } rows[] = {
      {4, 1, 375, 1, 2, 4, {93, 93}},       {4, 1, 667, 1, 2, 7, {94, 94}},
      {4, 1, 320, 1, 2, 4, {79, 79}},       {4, 1, 768, 1, 2, 8, {95, 95}},
      {4, 1, 1218, 1, 2, 13, {92.5, 92.5}}, {4, 1, 1874, 1, 2, 20, {92.5, 92.5}},
      {10, 1, 375, 1, 2, 10, {36.5, 36.5}}, {7, 1, 375, 0, 3, 7, {160.0 / 3, 160.0 / 3}},
      {1, 0.4, 375, 2, 2, 1, {375, 150}},   {1, 0.4, 900, 2, 2, 1, {900, 360}},
      {4, 0.5, 375, 1, 1, 4, {93, 47}},
  };
  for (const auto& row : rows) {
    GridContents contents;
    contents.columns = row.columns;
    contents.heightByWidth = row.heightByWidth;
    const GridMetrics metrics = gridMetrics(contents, row.width, row.spacing, row.scale);
    EXPECT_EQ(metrics.columns, row.expectedColumns) << row.columns << " in " << row.width;
    EXPECT_DOUBLE_EQ(metrics.itemSize.width, row.size.width) << row.columns << " in " << row.width;
    EXPECT_DOUBLE_EQ(metrics.itemSize.height, row.size.height)
        << row.columns << " in " << row.width;
  }
}

}  // namespace
}  // namespace desktop::photos_ui
