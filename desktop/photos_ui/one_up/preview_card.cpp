// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/one_up/preview_card.h"

#include <algorithm>

namespace desktop::photos_ui {
namespace {

// In points.
constexpr CGFloat margin = 16;
constexpr CGFloat radius = 12;
constexpr CGFloat leastHeight = 96;

}  // namespace

CGRect cardFrame(CGRect room, CGSize shape) {
  const CGFloat width = room.size.width - 2 * margin;
  const CGFloat height = std::max(width * shape.height / shape.width, leastHeight);
  const CGFloat factor = std::min(1.0, (room.size.height - 4 * margin) / height);
  const CGSize size = {width * factor, height * factor};
  return {{(room.size.width - size.width) / 2, (room.size.height - size.height) / 2}, size};
}

void dressAsCard(UIView view) {
  view.setBackgroundColor(UIColor::whiteColor());
  view.layer().setCornerRadius(radius);
}

}  // namespace desktop::photos_ui
