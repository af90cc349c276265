// SPDX-License-Identifier: MIT
#include "desktop/uikit/controllers/ui_activity_view_controller.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/outside.h"
#include "desktop/uikit/overlays/alert_view.h"
#include "desktop/uikit/overlays/ui_alert_action.h"

namespace desktop::uikit {
namespace {

// The platform's name of the activity, and one of our own.
constexpr char copyActivity[] = "com.apple.UIKit.activity.CopyToPasteboard";
constexpr char saveActivity[] = "SaveAsText";

constexpr NSUInteger previewLength = 160;  // UTF-16 units

UIAlertAction row(const char* title, UIAlertAction::Style style, std::function<void()> press) {
  return UIAlertAction::make(
      NSString::make(title), style,
      Block<void(UIAlertAction)>([press = std::move(press)](UIAlertAction) { press(); }));
}

}  // namespace

Class UIActivityViewControllerState::classObject() {
  using Controller = UIActivityViewControllerState;
  static const Class made =
      ClassBuilder<Controller>("UIActivityViewController")
          .method<"initWithActivityItems:applicationActivities:", &Controller::initWithItems>()
          .method<"excludedActivityTypes", &Controller::excludedActivityTypes>()
          .method<"setExcludedActivityTypes:", &Controller::setExcludedActivityTypes>()
          .method<"completionWithItemsHandler", &Controller::completionHandler>()
          .method<"setCompletionWithItemsHandler:", &Controller::setCompletionHandler>()
          .method<"modalPresentationStyle", &Controller::modalPresentationStyle>()
          .method<"loadView", &Controller::loadView>()
          .method<"_showPresented:", &Controller::showPresented>()
          .build();
  return made;
}

UIViewController UIActivityViewControllerState::initWithItems(NSArray items, NSArray) {
  const auto object = initWith<"init">(self());
  _items = copy(items);
  return object;
}

void UIActivityViewControllerState::setExcludedActivityTypes(NSArray types) {
  _excluded = copy(types);
}

void UIActivityViewControllerState::setCompletionHandler(const BlockHeader* handler) {
  _completion = Completion::retain(handler);
}

std::string UIActivityViewControllerState::text() const {
  std::string all;
  const NSUInteger count = _items->count();
  for (NSUInteger index = 0; index < count; ++index) {
    if (index > 0) all += '\n';
    all += printed(_items->at(index)).utf8();
  }
  return all;
}

bool UIActivityViewControllerState::isExcluded(const char* activityType) const {
  return _excluded->contains(NSString::make(activityType));
}

// The beginning of the first item.
NSString UIActivityViewControllerState::preview() const {
  if (_items->count() == 0) return {};
  const NSString whole = printed(_items->at(0));
  if (whole.length() <= previewLength) return whole;
  const auto characters = whole.wholeCharacters(NSRange{0, previewLength});
  return whole.substring(characters).appending(NSString::make("\u2026"));
}

ObjectList<UIAlertAction> UIActivityViewControllerState::rows() {
  ObjectList<UIAlertAction> rows;
  const auto add = [&rows](UIAlertAction action) {
    rows.push_back(Owned<UIAlertAction>::retain(action));
  };
  if (!isExcluded(copyActivity))
    add(row("Copy", UIAlertAction::normal, [this] { perform(Activity::copy); }));
  if (!isExcluded(saveActivity))
    add(row("Save as Text\u2026", UIAlertAction::normal, [this] { perform(Activity::save); }));
  add(row("Cancel", UIAlertAction::cancel, [this] { cancel(); }));
  return rows;
}

void UIActivityViewControllerState::loadView() {
  const auto view = AlertView::make({});
  AlertView::of(view.get())
      .show(
          {.title = {}, .message = preview(), .actions = rows(), .preferred = {}, .isSheet = true},
          [](UIAlertAction action) { UIAlertActionState::of(action.get()).callHandler(); },
          [this] { cancel(); });
  self().setView(view.get());
}

void UIActivityViewControllerState::showPresented(bool shown) {
  AlertView::of(self().view().get())
      .take(shown ? AlertView::Stance::shown : AlertView::Stance::gone);
}

void UIActivityViewControllerState::perform(Activity activity) {
  if (activity == Activity::copy) {
    if (outside().copyText) outside().copyText(text());
    return leave(copyActivity, {});
  }
  leave(saveActivity, [text = text()] {
    if (outside().saveText) outside().saveText(text);
  });
}

void UIActivityViewControllerState::cancel() {
  leave(nullptr, {});
}

// The handler is called once, when the sheet has gone.
void UIActivityViewControllerState::leave(const char* activityType,
                                          const std::function<void()>& afterwards) {
  const Completion completion = _completion;
  _completion = {};
  self().dismiss(UIViewController::animated, Block<void()>([completion, activityType, afterwards] {
                   if (afterwards) afterwards();
                   completion(activityType ? NSString::make(activityType) : NSString(),
                              activityType != nullptr, {}, {});
                 }));
}

}  // namespace desktop::uikit
