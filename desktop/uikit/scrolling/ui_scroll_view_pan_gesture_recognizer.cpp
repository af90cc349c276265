// SPDX-License-Identifier: MIT
#include "desktop/uikit/scrolling/ui_scroll_view_pan_gesture_recognizer.h"

#include "bridge/class_builder.h"
#include "desktop/uikit/touch/ui_pan_gesture_recognizer.h"

namespace desktop::uikit {

Class UIScrollViewPanGestureRecognizer::classObject() {
  using Self = UIScrollViewPanGestureRecognizer;
  static const Class made = bridge::ClassBuilder<Self>("UIScrollViewPanGestureRecognizer")
                                .method<"touchesBegan:withEvent:", &Self::touchesBegan>()
                                .method<"reset", &Self::reset>()
                                .build();
  return made;
}

bool UIScrollViewPanGestureRecognizer::isInView() const {
  return static_cast<bool>(UIGestureRecognizer::of(self()).view());
}

void UIScrollViewPanGestureRecognizer::touchesBegan(bridge::NSSet touches, bridge::UIEvent event) {
  if (isInView() && _fingers.came) {
    const Ways ways = _fingers.came();
    UIPanGestureRecognizer::of(self()).setWays(ways.across, ways.down);
  }
  super<void, "touchesBegan:withEvent:">(touches, event);
}

void UIScrollViewPanGestureRecognizer::reset() {
  super<void, "reset">();
  if (isInView() && _fingers.went) _fingers.went();
}

}  // namespace desktop::uikit
