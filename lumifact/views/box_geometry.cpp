// SPDX-License-Identifier: MIT
#include "lumifact/views/box_geometry.h"

#include <algorithm>

namespace lumifact {
namespace {

constexpr CGFloat sideMargin = 10.0;  // both sides together
constexpr CGFloat maximumWidth = 320.0;
constexpr CGFloat verticalMargin = 40.0;  // above and below together
constexpr CGFloat shadowGrowth = 5.0;

CGRect centred(CGSize overlay, CGFloat width, CGFloat height) {
  return {{(overlay.width - width) * 0.5, (overlay.height - height) * 0.5}, {width, height}};
}

}  // namespace

CGRect initialBox(CGSize overlay) {
  const CGFloat width = std::min(overlay.width - sideMargin, maximumWidth);
  const CGFloat highest = overlay.height - verticalMargin;
  return centred(overlay, width, width < highest ? width : highest);
}

CGRect fittedBox(CGSize overlay, CGFloat fittedWidth, CGSize content) {
  return centred(overlay, std::min(fittedWidth, content.width), content.height);
}

CGRect shadowOf(CGSize box) {
  return {{0, 0}, {box.width + shadowGrowth, box.height + shadowGrowth}};
}

}  // namespace lumifact
