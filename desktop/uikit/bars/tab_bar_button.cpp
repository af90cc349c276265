// SPDX-License-Identifier: MIT
#include "desktop/uikit/bars/tab_bar_button.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/bars/bar_glyphs.h"
#include "desktop/uikit/bars/ui_tab_bar_item.h"
#include "desktop/uikit/graphics/canvas.h"
#include "desktop/uikit/graphics/encodings.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/graphics/ui_image.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

// In points.
constexpr CGFloat tabFontSize = 10;
constexpr CGFloat pictureMiddle = 18;
constexpr CGFloat labelTop = 34;
constexpr CGFloat labelHeight = 12;
constexpr Color unselected = Color::white(0.57);

}  // namespace

Class TabBarButton::classObject() {
  static const Class made = ClassBuilder<TabBarButton>("UITabBarButton")
                                .method<"initWithFrame:", &TabBarButton::initWithFrame>()
                                .method<"layoutSubviews", &TabBarButton::layoutSubviews>()
                                .method<"_press:", &TabBarButton::press>()
                                .method<"drawContentOn:", &TabBarButton::drawContent>()
                                .build();
  return made;
}

TabBarButton::TabBarButton(id self) : Bound(self), _label(bridge::makeView<UILabel>({})) {}

UIView TabBarButton::initWithFrame(CGRect frame) {
  const auto object = super<UIView, "initWithFrame:">(frame);
  _label->setFont(UIFont::systemFont(tabFontSize));
  _label->setTextAlignment(alignCenter);
  self().addSubview(_label);
  self().addTarget(self(), selector<"_press:">(), bridge::touchUpInside);
  return object;
}

Owned<UIView> TabBarButton::make(NSObject item, std::function<void()> pressed) {
  auto made = makeNew<UIView>(classObject());
  of(made.get())._item = Owned<NSObject>::retain(item);
  of(made.get())._pressed = std::move(pressed);
  return made;
}

void TabBarButton::refresh(bool isSelected) {
  _isSelected = isSelected;
  _label->setText(UITabBarItem::of(_item.get()).title());
  _label->setTextColor(UIColorState::make(isSelected ? tint() : unselected));
  setNeedsDisplay();
}

void TabBarButton::layoutSubviews() {
  _label->setFrame({{0, labelTop}, {self().bounds().size.width, labelHeight}});
}

void TabBarButton::press(Object) {
  const auto kept = Owned<UIControl>::retain(self());
  if (const auto pressed = _pressed) pressed();
}

void TabBarButton::drawContent(Canvas* canvas) const {
  const UITabBarItem& item = UITabBarItem::of(_item.get());
  const CGPoint mid{self().bounds().size.width / 2, pictureMiddle};
  if (item.image()) {
    const UIImageState& image = UIImageState::of(item.image().get());
    const CGSize size = image.size();
    return canvas->image(image.bitmap(), {mid - CGPoint{size.width / 2, size.height / 2}, size});
  }
  drawGlyph(item.picture(), mid - CGPoint{glyphSize / 2, glyphSize / 2},
            _isSelected ? tint() : unselected, *canvas);
}

}  // namespace desktop::uikit
