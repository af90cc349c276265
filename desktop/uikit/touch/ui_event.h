// SPDX-License-Identifier: MIT
//
// UIEvent: what the views and recognisers of a touch are told of it.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit/ui_view.h"
#include "desktop/uikit/base/scheduler.h"

namespace desktop::uikit {

class UIEvent : public bridge::Bound<UIEvent, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();
  static bridge::Owned<bridge::UIEvent> make();

  // What it is about; nil while the touched view is still looked for.
  void setTouch(bridge::UITouch touch);
  // A set of the one touch; autoreleased.
  bridge::NSSet allTouches() const;

 private:
  bridge::NSSet touchesForView(bridge::UIView view) const;
  NSInteger type() const { return 0; }  // touches
  Seconds timestamp() const;

  bridge::Owned<bridge::UITouch> _touch;
};

}  // namespace desktop::uikit
