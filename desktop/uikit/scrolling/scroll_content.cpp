// SPDX-License-Identifier: MIT
#include "desktop/uikit/scrolling/scroll_content.h"

#include <algorithm>

#include "desktop/uikit/scrolling/scroll_motion.h"

namespace desktop::uikit {
namespace {

// One direction: from the inset before the content as far as the content reaches beyond the room.
CGFloat clampedTo(CGFloat offset, CGFloat before, CGFloat content, CGFloat after, CGFloat room) {
  return std::clamp(offset, -before, std::max(-before, content + after - room));
}

CGFloat pulled(CGFloat offset, CGFloat inside, CGFloat room, bool bounces) {
  return bounces ? inside + rubberBand(offset - inside, room) : inside;
}

}  // namespace

EdgeInsets ScrollContent::adjustedInset() const {
  return adjustment == never ? inset : inset + safeArea;
}

CGSize ScrollContent::whole() const {
  const EdgeInsets insets = adjustedInset();
  return {size.width + insets.left + insets.right, size.height + insets.top + insets.bottom};
}

CGPoint ScrollContent::clamped(CGPoint offset, CGSize room) const {
  const EdgeInsets insets = adjustedInset();
  return {clampedTo(offset.x, insets.left, size.width, insets.right, room.width),
          clampedTo(offset.y, insets.top, size.height, insets.bottom, room.height)};
}

CGPoint ScrollContent::pulledTo(CGPoint offset, CGSize room, bool bounces) const {
  const CGPoint inside = clamped(offset, room);
  return {pulled(offset.x, inside.x, room.width, bounces),
          pulled(offset.y, inside.y, room.height, bounces)};
}

}  // namespace desktop::uikit
