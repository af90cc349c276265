// SPDX-License-Identifier: MIT
//
// An item is a plain record; whoever shows it is told of each change by `changed`. Pressing it
// sends its action up from the responder where it was pressed.
#include "desktop/uikit/bars/ui_bar_button_item.h"

#include <cmath>

#include "bridge/class_builder.h"
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

Class UIBarButtonItem::classObject() {
  static const Class made =
      bridge::ClassBuilder<UIBarButtonItem>("UIBarButtonItem")
          .method<"initWithTitle:style:target:action:", &UIBarButtonItem::initWithTitle>()
          .method<"initWithImage:style:target:action:", &UIBarButtonItem::initWithImage>()
          .method<"initWithBarButtonSystemItem:target:action:",
                  &UIBarButtonItem::initWithSystemItem>()
          .method<"initWithCustomView:", &UIBarButtonItem::initWithCustomView>()
          .method<"title", &UIBarButtonItem::title>()
          .method<"setTitle:", &UIBarButtonItem::setTitle>()
          .method<"image", &UIBarButtonItem::image>()
          .method<"setImage:", &UIBarButtonItem::setImage>()
          .method<"customView", &UIBarButtonItem::customView>()
          .method<"setCustomView:", &UIBarButtonItem::setCustomView>()
          .method<"style", &UIBarButtonItem::style>()
          .method<"setStyle:", &UIBarButtonItem::setStyle>()
          .method<"width", &UIBarButtonItem::width>()
          .method<"setWidth:", &UIBarButtonItem::setWidth>()
          .method<"tag", &UIBarButtonItem::tag>()
          .method<"setTag:", &UIBarButtonItem::setTag>()
          .method<"isEnabled", &UIBarButtonItem::isEnabled>()
          .method<"setEnabled:", &UIBarButtonItem::setEnabled>()
          .method<"target", &UIBarButtonItem::target>()
          .method<"setTarget:", &UIBarButtonItem::setTarget>()
          .method<"action", &UIBarButtonItem::action>()
          .method<"setAction:", &UIBarButtonItem::setAction>()
          .method<"tintColor", &UIBarButtonItem::tintColor>()
          .method<"setTintColor:", &UIBarButtonItem::setTintColor>()
          .build();
  return made;
}

bridge::NSObject UIBarButtonItem::initWithTitle(bridge::NSString title, NSInteger style,
                                                bridge::NSObject target, SEL action) {
  const auto object = super<bridge::NSObject, "init">();
  setTitle(title);
  _style = style;
  _target = target;
  _action = action;
  return object;
}

bridge::NSObject UIBarButtonItem::initWithImage(bridge::UIImage image, NSInteger style,
                                                bridge::NSObject target, SEL action) {
  const auto object = initWithTitle({}, style, target, action);
  setImage(image);
  return object;
}

bridge::NSObject UIBarButtonItem::initWithSystemItem(NSInteger item, bridge::NSObject target,
                                                     SEL action) {
  constexpr NSInteger doneItem = 0;
  constexpr NSInteger saveItem = 3;
  const std::string_view title = systemItemTitle(item);
  const bool isBold = item == doneItem || item == saveItem;
  const auto object =
      initWithTitle(title.empty() ? bridge::NSString() : bridge::NSString::make(title),
                    isBold ? done : plain, target, action);
  _systemItem = item;
  return object;
}

bridge::NSObject UIBarButtonItem::initWithCustomView(bridge::UIView view) {
  const auto object = super<bridge::NSObject, "init">();
  setCustomView(view);
  return object;
}

void UIBarButtonItem::setTitle(bridge::NSString title) {
  if (title == _title.get() || (title && _title && title.isEqualToString(_title))) return;
  _title = bridge::Owned<bridge::NSString>::adopt(bridge::send<bridge::NSString, "copy">(title));
  changed();
}

void UIBarButtonItem::setImage(bridge::UIImage image) {
  _image = bridge::Owned<bridge::UIImage>::retain(image);
  changed();
}

void UIBarButtonItem::setCustomView(bridge::UIView view) {
  _customView = bridge::Owned<bridge::UIView>::retain(view);
  changed();
}

void UIBarButtonItem::setStyle(NSInteger style) {
  _style = style;
  changed();
}

void UIBarButtonItem::setWidth(CGFloat width) {
  _width = std::isfinite(width) ? width : 0;
  changed();
}

void UIBarButtonItem::setEnabled(bool enabled) {
  if (enabled == _isEnabled) return;
  _isEnabled = enabled;
  changed();
}

void UIBarButtonItem::setTintColor(bridge::UIColor color) {
  _tintColor = bridge::Owned<bridge::UIColor>::retain(color);
  changed();
}

std::optional<Color> UIBarButtonItem::tint() const {
  if (!_tintColor) return std::nullopt;
  return UIColor::valueOf(_tintColor);
}

void UIBarButtonItem::changed() const {
  bridge::send<void, "_itemChanged">(_shownBy);
}

// Neither item nor target may go while the action runs.
void UIBarButtonItem::press(bridge::UIResponder from) {
  if (!_action || !_isEnabled) return;
  const auto kept = bridge::Owned<bridge::NSObject>::retain(self());
  bridge::Owned<bridge::NSObject> taker = bridge::Owned<bridge::NSObject>::retain(_target);
  if (!taker) {
    while (from && !bridge::send<bool, "respondsToSelector:">(from, _action))
      from = bridge::send<bridge::UIResponder, "nextResponder">(from);
    taker = bridge::Owned<bridge::NSObject>::retain(from);
  }
  if (taker) bridge::dispatch<void>(taker.get().get(), _action, self().get());
}

}  // namespace desktop::uikit
