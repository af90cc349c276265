// SPDX-License-Identifier: MIT
#include "desktop/uikit/views/ui_responder.h"

#include "bridge/class_builder.h"

namespace desktop::uikit {
namespace {

constinit id currentFirstResponder = nullptr;  // borrowed: it resigns when it goes

}  // namespace

Class UIResponder::classObject() {
  static const Class made =
      bridge::ClassBuilder<UIResponder>("UIResponder")
          .method<"nextResponder", &UIResponder::nextResponder>()
          .method<"canBecomeFirstResponder", &UIResponder::canBecomeFirstResponder>()
          .method<"becomeFirstResponder", &UIResponder::becomeFirstResponder>()
          .method<"resignFirstResponder", &UIResponder::resignFirstResponder>()
          .method<"isFirstResponder", &UIResponder::isFirstResponder>()
          .method<"canPerformAction:withSender:", &UIResponder::canPerformAction>()
          .method<"touchesBegan:withEvent:", &UIResponder::touchesBegan>()
          .method<"touchesMoved:withEvent:", &UIResponder::touchesMoved>()
          .method<"touchesEnded:withEvent:", &UIResponder::touchesEnded>()
          .method<"touchesCancelled:withEvent:", &UIResponder::touchesCancelled>()
          .build();
  return made;
}

UIResponder::~UIResponder() {
  if (isFirstResponder()) currentFirstResponder = nullptr;
}

bridge::UIResponder UIResponder::firstResponder() {
  return bridge::UIResponder(currentFirstResponder);
}

bool UIResponder::becomeFirstResponder() {
  if (isFirstResponder()) return true;
  if (!bridge::send<bool, "canBecomeFirstResponder">(self())) return false;
  bridge::send<bool, "resignFirstResponder">(firstResponder());
  currentFirstResponder = self().get();
  return true;
}

bool UIResponder::resignFirstResponder() {
  if (isFirstResponder()) currentFirstResponder = nullptr;
  return true;
}

bool UIResponder::isFirstResponder() const {
  return currentFirstResponder == self().get();
}

bool UIResponder::canPerformAction(SEL action, bridge::Object) const {
  return bridge::send<bool, "respondsToSelector:">(self(), action);
}

bridge::UIResponder UIResponder::next() const {
  return bridge::send<bridge::UIResponder, "nextResponder">(self());
}

void UIResponder::touchesBegan(bridge::NSSet touches, bridge::UIEvent event) {
  bridge::send<void, "touchesBegan:withEvent:">(next(), touches, event);
}

void UIResponder::touchesMoved(bridge::NSSet touches, bridge::UIEvent event) {
  bridge::send<void, "touchesMoved:withEvent:">(next(), touches, event);
}

void UIResponder::touchesEnded(bridge::NSSet touches, bridge::UIEvent event) {
  bridge::send<void, "touchesEnded:withEvent:">(next(), touches, event);
}

void UIResponder::touchesCancelled(bridge::NSSet touches, bridge::UIEvent event) {
  bridge::send<void, "touchesCancelled:withEvent:">(next(), touches, event);
}

}  // namespace desktop::uikit
