// SPDX-License-Identifier: MIT
//
// The recogniser of a scroll view's panning: moves along the ways that can be scrolled count, and
// the view hears of the finger on it, whatever becomes of it.
#pragma once

#include <functional>

#include "bridge/bound.h"
#include "desktop/uikit/handles.h"

namespace desktop::uikit {

class UIScrollViewPanGestureRecognizer
    : public bridge::Bound<UIScrollViewPanGestureRecognizer, handles::UIPanGestureRecognizer> {
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
  void touchesBegan(bridge::NSSet touches, bridge::UIEvent event);
  void reset();
  bool isInView() const;

  Fingers _fingers;
};

}  // namespace desktop::uikit
