// SPDX-License-Identifier: MIT
//
// An item is a plain record; whoever shows it is told of each change by `changed`. Pressing it
// sends its action up from the responder where it was pressed.
#include "desktop/uikit/bars/ui_bar_button_item.h"

#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/own_messages.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

struct TitledItem {
  NSInteger item;
  std::string_view title;
};

constexpr TitledItem titledItems[] = {
    {0, "Done"}, {1, "Cancel"}, {2, "Edit"}, {3, "Save"}, {21, "Undo"}, {22, "Redo"},
};

}  // namespace

std::string_view systemItemTitle(NSInteger item) {
  for (const TitledItem& titled : titledItems)
    if (titled.item == item) return titled.title;
  return {};
}

Class UIBarButtonItemState::classObject() {
  static const Class made =
      ClassBuilder<UIBarButtonItemState>("UIBarButtonItem")
          .method<"initWithTitle:style:target:action:", &UIBarButtonItemState::initWithTitle>()
          .method<"initWithImage:style:target:action:", &UIBarButtonItemState::initWithImage>()
          .method<"initWithBarButtonSystemItem:target:action:",
                  &UIBarButtonItemState::initWithSystemItem>()
          .method<"initWithCustomView:", &UIBarButtonItemState::initWithCustomView>()
          .method<"title", &UIBarButtonItemState::title>()
          .method<"setTitle:", &UIBarButtonItemState::setTitle>()
          .method<"image", &UIBarButtonItemState::image>()
          .method<"setImage:", &UIBarButtonItemState::setImage>()
          .method<"customView", &UIBarButtonItemState::customView>()
          .method<"setCustomView:", &UIBarButtonItemState::setCustomView>()
          .method<"style", &UIBarButtonItemState::style>()
          .method<"setStyle:", &UIBarButtonItemState::setStyle>()
          .method<"width", &UIBarButtonItemState::width>()
          .method<"setWidth:", &UIBarButtonItemState::setWidth>()
          .method<"tag", &UIBarButtonItemState::tag>()
          .method<"setTag:", &UIBarButtonItemState::setTag>()
          .method<"isEnabled", &UIBarButtonItemState::isEnabled>()
          .method<"setEnabled:", &UIBarButtonItemState::setEnabled>()
          .method<"target", &UIBarButtonItemState::target>()
          .method<"setTarget:", &UIBarButtonItemState::setTarget>()
          .method<"action", &UIBarButtonItemState::action>()
          .method<"setAction:", &UIBarButtonItemState::setAction>()
          .method<"tintColor", &UIBarButtonItemState::tintColor>()
          .method<"setTintColor:", &UIBarButtonItemState::setTintColor>()
          .build();
  return made;
}

NSObject UIBarButtonItemState::initWithTitle(NSString title, NSInteger style, NSObject target,
                                             SEL action) {
  const auto object = super<NSObject, "init">();
  setTitle(title);
  _style = style;
  _target = target;
  _action = action;
  return object;
}

NSObject UIBarButtonItemState::initWithImage(UIImage image, NSInteger style, NSObject target,
                                             SEL action) {
  const auto object = initWithTitle({}, style, target, action);
  setImage(image);
  return object;
}

NSObject UIBarButtonItemState::initWithSystemItem(NSInteger item, NSObject target, SEL action) {
  constexpr NSInteger doneItem = 0;
  constexpr NSInteger saveItem = 3;
  const std::string_view title = systemItemTitle(item);
  const bool isBold = item == doneItem || item == saveItem;
  const auto object = initWithTitle(title.empty() ? NSString() : NSString::make(title),
                                    isBold ? done : plain, target, action);
  _systemItem = item;
  return object;
}

NSObject UIBarButtonItemState::initWithCustomView(UIView view) {
  const auto object = super<NSObject, "init">();
  setCustomView(view);
  return object;
}

void UIBarButtonItemState::setTitle(NSString title) {
  if (title == _title.get() || (title && _title && title.isEqualToString(_title))) return;
  _title = copy(title);
  changed();
}

void UIBarButtonItemState::setImage(UIImage image) {
  _image = Owned<UIImage>::retain(image);
  changed();
}

void UIBarButtonItemState::setCustomView(UIView view) {
  _customView = Owned<UIView>::retain(view);
  changed();
}

void UIBarButtonItemState::setStyle(NSInteger style) {
  _style = style;
  changed();
}

void UIBarButtonItemState::setWidth(CGFloat width) {
  _width = std::isfinite(width) ? width : 0;
  changed();
}

void UIBarButtonItemState::setEnabled(bool enabled) {
  if (enabled == _isEnabled) return;
  _isEnabled = enabled;
  changed();
}

void UIBarButtonItemState::setTintColor(UIColor color) {
  _tintColor = Owned<UIColor>::retain(color);
  changed();
}

std::optional<Color> UIBarButtonItemState::tint() const {
  if (!_tintColor) return std::nullopt;
  return UIColorState::valueOf(_tintColor);
}

void UIBarButtonItemState::changed() const {
  itemChanged(_shownBy);
}

// Neither item nor target may go while the action runs.
void UIBarButtonItemState::press(UIResponder from) {
  if (!_action || !_isEnabled) return;
  const auto kept = Owned<NSObject>::retain(self());
  Owned<NSObject> taker = Owned<NSObject>::retain(_target);
  if (!taker) {
    while (from && !respondsTo(from, _action)) from = from.nextResponder();
    taker = Owned<NSObject>::retain(from);
  }
  if (taker) dispatch<void>(taker.get().get(), _action, self().get());
}

}  // namespace desktop::uikit
