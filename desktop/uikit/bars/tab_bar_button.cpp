// SPDX-License-Identifier: MIT
#include "desktop/uikit/bars/tab_bar_button.h"

#include "bridge/class_builder.h"
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
  static const Class made = bridge::ClassBuilder<TabBarButton>("UITabBarButton")
                                .method<"initWithFrame:", &TabBarButton::initWithFrame>()
                                .method<"layoutSubviews", &TabBarButton::layoutSubviews>()
                                .method<"_press:", &TabBarButton::press>()
                                .method<"drawContentOn:", &TabBarButton::drawContent>()
                                .build();
  return made;
}

TabBarButton::TabBarButton(id self) : Bound(self), _label(bridge::makeView<bridge::UILabel>({})) {}

bridge::UIView TabBarButton::initWithFrame(CGRect frame) {
  const auto object = super<bridge::UIView, "initWithFrame:">(frame);
  _label->setFont(bridge::UIFont::systemFont(tabFontSize));
  _label->setTextAlignment(bridge::alignCenter);
  self().addSubview(_label);
  self().addTarget(self(), bridge::selector<"_press:">(), bridge::touchUpInside);
  return object;
}

bridge::Owned<bridge::UIView> TabBarButton::make(bridge::NSObject item,
                                                 std::function<void()> pressed) {
  auto made = bridge::Owned<bridge::UIView>::adopt(
      bridge::send<bridge::UIView, "init">(bridge::send<id, "alloc">(classObject())));
  of(made.get())._item = bridge::Owned<bridge::NSObject>::retain(item);
  of(made.get())._pressed = std::move(pressed);
  return made;
}

void TabBarButton::refresh(bool isSelected) {
  _isSelected = isSelected;
  _label->setText(UITabBarItem::of(_item.get()).title());
  _label->setTextColor(UIColor::make(isSelected ? UIView::of(self()).tint() : unselected));
  UIView::of(self()).setNeedsDisplay();
}

void TabBarButton::layoutSubviews() {
  _label->setFrame({{0, labelTop}, {self().bounds().size.width, labelHeight}});
}

void TabBarButton::press(bridge::Object) {
  const auto kept = bridge::Owned<bridge::UIControl>::retain(self());
  if (const auto pressed = _pressed) pressed();
}

void TabBarButton::drawContent(Canvas* canvas) const {
  const UITabBarItem& item = UITabBarItem::of(_item.get());
  const CGPoint mid{self().bounds().size.width / 2, pictureMiddle};
  if (item.image()) {
    const UIImage& image = UIImage::of(item.image().get());
    const CGSize size = image.size();
    return canvas->image(image.bitmap(), {mid - CGPoint{size.width / 2, size.height / 2}, size});
  }
  drawGlyph(item.picture(), mid - CGPoint{glyphSize / 2, glyphSize / 2},
            _isSelected ? UIView::of(self()).tint() : unselected, *canvas);
}

}  // namespace desktop::uikit
