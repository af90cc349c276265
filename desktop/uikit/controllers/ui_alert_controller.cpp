// SPDX-License-Identifier: MIT
#include "desktop/uikit/controllers/ui_alert_controller.h"

#include <algorithm>
#include <functional>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/overlays/ui_alert_action.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

constexpr Seconds alertTime = 0.25;
constexpr Seconds sheetTime = 0.4;

}  // namespace

Class UIAlertControllerState::classObject() {
  using Controller = UIAlertControllerState;
  static const Class made =
      ClassBuilder<Controller>("UIAlertController")
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

UIAlertController UIAlertControllerState::make(NSString title, NSString message, NSInteger style) {
  auto made = makeNew<UIAlertController>();
  made->setTitle(title);
  of(made.get()).setMessage(message);
  of(made.get())._style = style;
  return made.autorelease();
}

void UIAlertControllerState::setMessage(NSString message) {
  _message = copy(message);
}

void UIAlertControllerState::addAction(UIAlertAction action) {
  if (action) _actions.push_back(Owned<UIAlertAction>::retain(action));
}

void UIAlertControllerState::setPreferredAction(UIAlertAction action) {
  _preferred = Owned<UIAlertAction>::retain(action);
}

void UIAlertControllerState::loadView() {
  self().setView(AlertView::make({}).get());
}

// Actions can be added until the alert is shown.
void UIAlertControllerState::viewWillAppear(bool animated) {
  super<void, "viewWillAppear:">(animated);
  ObjectList<UIAlertAction> shown = _actions;
  // An alert has its cancel action at the left of two, and at the end of more.
  const auto isCancel = [](const auto& action) {
    return UIAlertActionState::of(action.get()).style() == UIAlertActionState::cancel;
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
          [this](UIAlertAction action) { choose(action); }, [this] { cancel(); });
}

// The handler is called when the alert has gone, so that it can show another one.
void UIAlertControllerState::choose(UIAlertAction action) {
  const auto kept = Owned<UIAlertAction>::retain(action);
  self().dismiss(UIViewController::animated, Block<void()>([kept] {
                   if (kept) UIAlertActionState::of(kept.get()).callHandler();
                 }));
}

void UIAlertControllerState::cancel() {
  for (const auto& action : _actions)
    if (UIAlertActionState::of(action.get()).style() == UIAlertActionState::cancel)
      return choose(action);
}

void UIAlertControllerState::showPresented(bool shown) {
  AlertView& view = AlertView::of(self().view().get());
  const bool isComing = self().isBeingPresented();
  view.take(shown      ? AlertView::Stance::shown
            : isComing ? AlertView::Stance::coming
                       : AlertView::Stance::gone);
}

Seconds UIAlertControllerState::presentationDuration() const {
  return _style == alert ? alertTime : sheetTime;
}

}  // namespace desktop::uikit
