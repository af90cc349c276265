// SPDX-License-Identifier: MIT
#include "desktop/uikit/controllers/ui_alert_controller.h"

#include <algorithm>
#include <functional>

#include "bridge/class_builder.h"
#include "desktop/uikit/overlays/ui_alert_action.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

using bridge::NSString;
using bridge::Owned;

constexpr Seconds alertTime = 0.25;
constexpr Seconds sheetTime = 0.4;

}  // namespace

Class UIAlertController::classObject() {
  using Controller = UIAlertController;
  static const Class made =
      bridge::ClassBuilder<Controller>("UIAlertController")
          .classMethod<"alertControllerWithTitle:message:preferredStyle:", &Controller::make>()
          .method<"message", &Controller::message>()
          .method<"setMessage:", &Controller::setMessage>()
          .method<"preferredStyle", &Controller::preferredStyle>()
          .method<"addAction:", &Controller::addAction>()
          .method<"actions", &Controller::actionsArray>()
          .method<"preferredAction", &Controller::preferredAction>()
          .method<"setPreferredAction:", &Controller::setPreferredAction>()
          .method<"modalPresentationStyle", &Controller::modalPresentationStyle>()
          .method<"loadView", &Controller::loadView>()
          .method<"viewWillAppear:", &Controller::viewWillAppear>()
          .method<"_showPresented:", &Controller::showPresented>()
          .method<"_presentationDuration", &Controller::presentationDuration>()
          .build();
  return made;
}

bridge::UIAlertController UIAlertController::make(NSString title, NSString message,
                                                  NSInteger style) {
  auto made = bridge::makeNew<bridge::UIAlertController>();
  bridge::send<void, "setTitle:">(made.get(), title);
  of(made.get()).setMessage(message);
  of(made.get())._style = style;
  return made.autorelease();
}

void UIAlertController::setMessage(NSString message) {
  _message = Owned<NSString>::adopt(bridge::send<NSString, "copy">(message));
}

void UIAlertController::addAction(bridge::UIAlertAction action) {
  if (action) _actions.push_back(Owned<bridge::UIAlertAction>::retain(action));
}

void UIAlertController::setPreferredAction(bridge::UIAlertAction action) {
  _preferred = Owned<bridge::UIAlertAction>::retain(action);
}

void UIAlertController::loadView() {
  bridge::send<void, "setView:">(self(), AlertView::make({}).get());
}

// Actions can be added until the alert is shown.
void UIAlertController::viewWillAppear(bool animated) {
  super<void, "viewWillAppear:">(animated);
  ObjectList<bridge::UIAlertAction> shown = _actions;
  // An alert has its cancel action at the left of two, and at the end of more.
  const auto isCancel = [](const auto& action) {
    return UIAlertAction::of(action.get()).style() == UIAlertAction::cancel;
  };
  if (shown.size() == 2)
    std::stable_partition(shown.begin(), shown.end(), isCancel);
  else
    std::stable_partition(shown.begin(), shown.end(), std::not_fn(isCancel));
  AlertView::of(self().view().get())
      .show(
          {.title = title(),
           .message = _message,
           .actions = shown,
           .preferred = _preferred,
           .isSheet = _style == actionSheet},
          [this](bridge::UIAlertAction action) { choose(action); }, [this] { cancel(); });
}

// The handler is called when the alert has gone, so that it can show another one.
void UIAlertController::choose(bridge::UIAlertAction action) {
  const auto kept = Owned<bridge::UIAlertAction>::retain(action);
  self().dismiss(bridge::UIViewController::animated, bridge::Block<void()>([kept] {
                   if (kept) UIAlertAction::of(kept.get()).callHandler();
                 }));
}

void UIAlertController::cancel() {
  for (const auto& action : _actions)
    if (UIAlertAction::of(action.get()).style() == UIAlertAction::cancel) return choose(action);
}

void UIAlertController::showPresented(bool shown) {
  AlertView& view = AlertView::of(self().view().get());
  const bool isComing = bridge::send<bool, "isBeingPresented">(self());
  view.take(shown      ? AlertView::Stance::shown
            : isComing ? AlertView::Stance::coming
                       : AlertView::Stance::gone);
}

Seconds UIAlertController::presentationDuration() const {
  return _style == alert ? alertTime : sheetTime;
}

}  // namespace desktop::uikit
