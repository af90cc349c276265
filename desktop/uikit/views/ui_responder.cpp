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
  if (!self().canBecomeFirstResponder()) return false;
  firstResponder().resignFirstResponder();
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
  return respondsTo(self(), action);
}

UIResponder UIResponderState::next() const {
  return self().nextResponder();
}

void UIResponderState::touchesBegan(NSSet touches, UIEvent event) {
  next().touchesBegan(touches, event);
}

void UIResponderState::touchesMoved(NSSet touches, UIEvent event) {
  next().touchesMoved(touches, event);
}

void UIResponderState::touchesEnded(NSSet touches, UIEvent event) {
  next().touchesEnded(touches, event);
}

void UIResponderState::touchesCancelled(NSSet touches, UIEvent event) {
  next().touchesCancelled(touches, event);
}

}  // namespace desktop::uikit
