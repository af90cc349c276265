// SPDX-License-Identifier: MIT
#include "desktop/uikit/scrolling/ui_scroll_view_pan_gesture_recognizer.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/touch/ui_pan_gesture_recognizer.h"

namespace desktop::uikit {

Class UIScrollViewPanGestureRecognizer::classObject() {
  using Self = UIScrollViewPanGestureRecognizer;
  static const Class made = ClassBuilder<Self>("UIScrollViewPanGestureRecognizer")
                                .method<"touchesBegan:withEvent:", &Self::touchesBegan>()
                                .method<"reset", &Self::reset>()
                                .build();
  return made;
}

bool UIScrollViewPanGestureRecognizer::isInView() const {
  return static_cast<bool>(view());
}

void UIScrollViewPanGestureRecognizer::touchesBegan(NSSet touches, UIEvent event) {
  if (isInView() && _fingers.came) {
    const Ways ways = _fingers.came();
    setWays(ways.across, ways.down);
  }
  super<void, "touchesBegan:withEvent:">(touches, event);
}

void UIScrollViewPanGestureRecognizer::reset() {
  super<void, "reset">();
  if (isInView() && _fingers.went) _fingers.went();
}

}  // namespace desktop::uikit
