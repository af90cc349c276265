// SPDX-License-Identifier: MIT
//
// How many columns a grid has, and how large its cells are.
#pragma once

#include "bridge/runtime/types.h"
#include "desktop/photos_ui/grid/grid_contents.h"
#include "desktop/platform.h"

namespace desktop::photos_ui {

struct GridMetrics {
  NSInteger columns;
  CGSize itemSize;  // points, on whole pixels
};

// In a view of a width, with spacing between columns, both in points; as many more columns as a
// wider view has room for. The scale is pixels a point.
GridMetrics gridMetrics(const GridContents& contents, CGFloat width, CGFloat spacing,
                        CGFloat scale);

}  // namespace desktop::photos_ui
