// SPDX-License-Identifier: MIT
//
// UIEvent: what the views and recognisers of a touch are told of it.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_view.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/scheduler.h"

namespace desktop::uikit {

class UIEventState : public Bound<UIEventState, NSObject, UIEvent> {
 public:
  using Bound::Bound;
  static Class classObject();
  static Owned<UIEvent> make();

  // What it is about; nil while the touched view is still looked for.
  void setTouch(UITouch touch);
  // A set of the one touch; autoreleased.
  NSSet allTouches() const;

 private:
  NSSet touchesForView(UIView view) const;
  NSInteger type() const { return 0; }  // touches
  Seconds timestamp() const;

  Owned<UITouch> _touch;
};

}  // namespace desktop::uikit
