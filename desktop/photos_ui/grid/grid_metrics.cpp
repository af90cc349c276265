// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/grid/grid_metrics.h"

#include <algorithm>
#include <cmath>

namespace desktop::photos_ui {
namespace {

NSInteger columnsIn(const GridContents& contents, CGFloat width, CGFloat spacing) {
  constexpr CGFloat uprightWidth = 375;  // points
  if (contents.columns == 1) return 1;
  const CGFloat usual = uprightWidth / contents.columns;
  const CGFloat fitting = std::floor((width + spacing) / usual);
  return std::max<NSInteger>(contents.columns, static_cast<NSInteger>(fitting));
}

}  // namespace

GridMetrics gridMetrics(const GridContents& contents, CGFloat width, CGFloat spacing,
                        CGFloat scale) {
  const NSInteger columns = columnsIn(contents, width, spacing);
  const auto count = static_cast<CGFloat>(columns);
  const CGFloat gaps = spacing * (count - 1);
  const CGFloat side = std::floor((width - gaps) / count * scale) / scale;
  return {columns, {side, std::round(side * contents.heightByWidth * scale) / scale}};
}

}  // namespace desktop::photos_ui
