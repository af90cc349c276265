// SPDX-License-Identifier: MIT
#include "desktop/uikit/views/ui_responder.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"

namespace desktop::uikit {
namespace {

constinit id currentFirstResponder = nullptr;  // borrowed: it resigns when it goes

}  // namespace

Class UIResponderState::classObject() {
  static const Class made =
      ClassBuilder<UIResponderState>("UIResponder")
          .method<"nextResponder", &UIResponderState::nextResponder>()
          .method<"canBecomeFirstResponder", &UIResponderState::canBecomeFirstResponder>()
          .method<"becomeFirstResponder", &UIResponderState::becomeFirstResponder>()
          .method<"resignFirstResponder", &UIResponderState::resignFirstResponder>()
          .method<"isFirstResponder", &UIResponderState::isFirstResponder>()
          .method<"canPerformAction:withSender:", &UIResponderState::canPerformAction>()
          .method<"touchesBegan:withEvent:", &UIResponderState::touchesBegan>()
          .method<"touchesMoved:withEvent:", &UIResponderState::touchesMoved>()
          .method<"touchesEnded:withEvent:", &UIResponderState::touchesEnded>()
          .method<"touchesCancelled:withEvent:", &UIResponderState::touchesCancelled>()
          .build();
  return made;
}

UIResponderState::~UIResponderState() {
  if (isFirstResponder()) currentFirstResponder = nullptr;
}

UIResponder UIResponderState::firstResponder() {
  return UIResponder(currentFirstResponder);
}

bool UIResponderState::becomeFirstResponder() {
  if (isFirstResponder()) return true;
  if (!send<bool, "canBecomeFirstResponder">(self())) return false;
  send<bool, "resignFirstResponder">(firstResponder());
  currentFirstResponder = self().get();
  return true;
}

bool UIResponderState::resignFirstResponder() {
  if (isFirstResponder()) currentFirstResponder = nullptr;
  return true;
}

bool UIResponderState::isFirstResponder() const {
  return currentFirstResponder == self().get();
}

bool UIResponderState::canPerformAction(SEL action, Object) const {
  return send<bool, "respondsToSelector:">(self(), action);
}

UIResponder UIResponderState::next() const {
  return send<UIResponder, "nextResponder">(self());
}

void UIResponderState::touchesBegan(NSSet touches, UIEvent event) {
  send<void, "touchesBegan:withEvent:">(next(), touches, event);
}

void UIResponderState::touchesMoved(NSSet touches, UIEvent event) {
  send<void, "touchesMoved:withEvent:">(next(), touches, event);
}

void UIResponderState::touchesEnded(NSSet touches, UIEvent event) {
  send<void, "touchesEnded:withEvent:">(next(), touches, event);
}

void UIResponderState::touchesCancelled(NSSet touches, UIEvent event) {
  send<void, "touchesCancelled:withEvent:">(next(), touches, event);
}

}  // namespace desktop::uikit
