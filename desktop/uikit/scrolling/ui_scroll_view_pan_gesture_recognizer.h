// SPDX-License-Identifier: MIT
//
// The recogniser of a scroll view's panning: moves along the ways that can be scrolled count, and
// the view hears of the finger on it, whatever becomes of it.
#pragma once

#include <functional>
#include "desktop/uikit/touch/ui_pan_gesture_recognizer.h"

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"

namespace desktop::uikit {

class UIScrollViewPanGestureRecognizer
    : public Bound<UIScrollViewPanGestureRecognizer, UIPanGestureRecognizerState> {
 public:
  struct Ways {
    bool across = false;
    bool down = false;
  };
  // Called while the recogniser is in a view; may be unset.
  struct Fingers {
    std::function<Ways()> came;  // answers the ways that count for this finger
    std::function<void()> went;
  };

  using Bound::Bound;
  static Class classObject();

  void setFingers(Fingers fingers) { _fingers = std::move(fingers); }

 private:
  void touchesBegan(NSSet touches, UIEvent event);
  void reset();
  bool isInView() const;

  Fingers _fingers;
};

}  // namespace desktop::uikit
