// SPDX-License-Identifier: MIT
#include "desktop/uikit/touch/ui_event.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/touch/ui_touch.h"

namespace desktop::uikit {
namespace {

NSSet setOf(UITouch touch) {
  return touch ? NSSet::of(touch) : NSSet::none();
}

}  // namespace

Class UIEventState::classObject() {
  static const Class made = ClassBuilder<UIEventState>("UIEvent")
                                .method<"allTouches", &UIEventState::allTouches>()
                                .method<"touchesForView:", &UIEventState::touchesForView>()
                                .method<"type", &UIEventState::type>()
                                .method<"timestamp", &UIEventState::timestamp>()
                                .build();
  return made;
}

Owned<UIEvent> UIEventState::make() {
  return makeNew<UIEvent>();
}

void UIEventState::setTouch(UITouch touch) {
  _touch = Owned<UITouch>::retain(touch);
}

NSSet UIEventState::allTouches() const {
  return setOf(_touch);
}

NSSet UIEventState::touchesForView(UIView view) const {
  const bool isOnIt = _touch && UITouchState::of(_touch.get()).view() == view;
  return setOf(isOnIt ? _touch.get() : UITouch());
}

Seconds UIEventState::timestamp() const {
  return _touch ? UITouchState::of(_touch.get()).timestamp() : 0;
}

}  // namespace desktop::uikit
