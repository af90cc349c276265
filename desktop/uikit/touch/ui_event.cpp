// SPDX-License-Identifier: MIT
#include "desktop/uikit/touch/ui_event.h"

#include "bridge/class_builder.h"
#include "desktop/uikit/touch/ui_touch.h"

namespace desktop::uikit {
namespace {

bridge::NSSet setOf(bridge::UITouch touch) {
  return touch ? bridge::send<bridge::NSSet, "setWithObject:">(bridge::NSSet::classObject(), touch)
               : bridge::send<bridge::NSSet, "set">(bridge::NSSet::classObject());
}

}  // namespace

Class UIEvent::classObject() {
  static const Class made = bridge::ClassBuilder<UIEvent>("UIEvent")
                                .method<"allTouches", &UIEvent::allTouches>()
                                .method<"touchesForView:", &UIEvent::touchesForView>()
                                .method<"type", &UIEvent::type>()
                                .method<"timestamp", &UIEvent::timestamp>()
                                .build();
  return made;
}

bridge::Owned<bridge::UIEvent> UIEvent::make() {
  return bridge::makeNew<bridge::UIEvent>();
}

void UIEvent::setTouch(bridge::UITouch touch) {
  _touch = bridge::Owned<bridge::UITouch>::retain(touch);
}

bridge::NSSet UIEvent::allTouches() const {
  return setOf(_touch);
}

bridge::NSSet UIEvent::touchesForView(bridge::UIView view) const {
  const bool isOnIt = _touch && UITouch::of(_touch.get()).view() == view;
  return setOf(isOnIt ? _touch.get() : bridge::UITouch());
}

Seconds UIEvent::timestamp() const {
  return _touch ? UITouch::of(_touch.get()).timestamp() : 0;
}

}  // namespace desktop::uikit
