// SPDX-License-Identifier: MIT
//
// One screen of a stack takes another's place. Both controllers are held until that is over.
#pragma once

#include <functional>

#include "bridge/uikit/ui_controllers.h"
#include "desktop/platform.h"

namespace desktop::uikit {

class NavigationTransition {
 public:
  enum class Direction { none, forward, backward };
  // Nil where there is none.
  struct Screens {
    Owned<UIViewController> leaving;
    Owned<UIViewController> coming;
  };

  bool isUnderWay() const { return _screens.leaving || _screens.coming; }
  void begin(UIViewController leaving, UIViewController coming);
  // What was under way; what moves by itself after that is of no interest any more.
  Screens end();

  // Both screens slide over the content view while the bar's content view appears. REQUIRES: both
  // are there. `arrange` gives the screens their room; `isOver` is called in the end unless the
  // transition ended before, and keeps this alive.
  void slide(Direction direction, UIView content, UIView bar, const std::function<void()>& arrange,
             const std::function<void()>& isOver);

 private:
  Screens _screens;
  unsigned _number = 0;  // counts them
};

}  // namespace desktop::uikit
