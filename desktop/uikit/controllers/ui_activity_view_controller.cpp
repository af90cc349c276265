// SPDX-License-Identifier: MIT
#include "desktop/uikit/controllers/ui_activity_view_controller.h"

#include "bridge/class_builder.h"
#include "desktop/uikit/base/outside.h"
#include "desktop/uikit/overlays/alert_view.h"
#include "desktop/uikit/overlays/ui_alert_action.h"

namespace desktop::uikit {
namespace {

using bridge::NSArray;
using bridge::NSString;
using bridge::Owned;

// The platform's name of the activity, and one of our own.
constexpr char copyActivity[] = "com.apple.UIKit.activity.CopyToPasteboard";
constexpr char saveActivity[] = "SaveAsText";

constexpr NSUInteger previewLength = 160;  // UTF-16 units

bridge::UIAlertAction row(const char* title, NSInteger style, std::function<void()> press) {
  return bridge::send<bridge::UIAlertAction, "actionWithTitle:style:handler:">(
      UIAlertAction::classObject(), NSString::make(title), style,
      bridge::Block<void(bridge::UIAlertAction)>(
          [press = std::move(press)](bridge::UIAlertAction) { press(); }));
}

}  // namespace

Class UIActivityViewController::classObject() {
  using Controller = UIActivityViewController;
  static const Class made =
      bridge::ClassBuilder<Controller>("UIActivityViewController")
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

bridge::UIViewController UIActivityViewController::initWithItems(NSArray items, NSArray) {
  const auto object = bridge::send<bridge::UIViewController, "init">(self());
  _items = Owned<NSArray>::adopt(bridge::send<NSArray, "copy">(items));
  return object;
}

void UIActivityViewController::setExcludedActivityTypes(NSArray types) {
  _excluded = Owned<NSArray>::adopt(bridge::send<NSArray, "copy">(types));
}

void UIActivityViewController::setCompletionHandler(const bridge::BlockHeader* handler) {
  _completion = Completion::retain(handler);
}

std::string UIActivityViewController::text() const {
  std::string all;
  const NSUInteger count = _items->count();
  for (NSUInteger index = 0; index < count; ++index) {
    if (index > 0) all += '\n';
    all += bridge::printed(_items->at(index)).utf8();
  }
  return all;
}

bool UIActivityViewController::isExcluded(const char* activityType) const {
  return bridge::send<bool, "containsObject:">(_excluded.get(), NSString::make(activityType));
}

// The beginning of the first item.
NSString UIActivityViewController::preview() const {
  if (_items->count() == 0) return {};
  const NSString whole = bridge::printed(_items->at(0));
  if (whole.length() <= previewLength) return whole;
  const auto characters = bridge::send<NSRange, "rangeOfComposedCharacterSequencesForRange:">(
      whole, NSRange{0, previewLength});
  return bridge::send<NSString, "substringWithRange:">(whole, characters)
      .appending(NSString::make("\u2026"));
}

ObjectList<bridge::UIAlertAction> UIActivityViewController::rows() {
  ObjectList<bridge::UIAlertAction> rows;
  const auto add = [&rows](bridge::UIAlertAction action) {
    rows.push_back(Owned<bridge::UIAlertAction>::retain(action));
  };
  if (!isExcluded(copyActivity))
    add(row("Copy", UIAlertAction::normal, [this] { perform(Activity::copy); }));
  if (!isExcluded(saveActivity))
    add(row("Save as Text\u2026", UIAlertAction::normal, [this] { perform(Activity::save); }));
  add(row("Cancel", UIAlertAction::cancel, [this] { cancel(); }));
  return rows;
}

void UIActivityViewController::loadView() {
  const auto view = AlertView::make({});
  AlertView::of(view.get())
      .show(
          {.title = {}, .message = preview(), .actions = rows(), .preferred = {}, .isSheet = true},
          [](bridge::UIAlertAction action) { UIAlertAction::of(action.get()).callHandler(); },
          [this] { cancel(); });
  bridge::send<void, "setView:">(self(), view.get());
}

void UIActivityViewController::showPresented(bool shown) {
  AlertView::of(self().view().get())
      .take(shown ? AlertView::Stance::shown : AlertView::Stance::gone);
}

void UIActivityViewController::perform(Activity activity) {
  if (activity == Activity::copy) {
    if (outside().copyText) outside().copyText(text());
    return leave(copyActivity, {});
  }
  leave(saveActivity, [text = text()] {
    if (outside().saveText) outside().saveText(text);
  });
}

void UIActivityViewController::cancel() {
  leave(nullptr, {});
}

// The handler is called once, when the sheet has gone.
void UIActivityViewController::leave(const char* activityType,
                                     const std::function<void()>& afterwards) {
  const Completion completion = _completion;
  _completion = {};
  self().dismiss(bridge::UIViewController::animated,
                 bridge::Block<void()>([completion, activityType, afterwards] {
                   if (afterwards) afterwards();
                   completion(activityType ? NSString::make(activityType) : NSString(),
                              activityType != nullptr, {}, {});
                 }));
}

}  // namespace desktop::uikit
