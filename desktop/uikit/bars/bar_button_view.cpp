// SPDX-License-Identifier: MIT
//
// The view of one bar item: a control that shows what its item says at that moment, asked anew by
// `refresh`. A picture stands before a title, a title before the name of a system item; what it
// measures and what it paints come from the same three.
#include "desktop/uikit/bars/bar_button_view.h"

#include <algorithm>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/bars/bar_glyphs.h"
#include "desktop/uikit/bars/ui_bar_button_item.h"
#include "desktop/uikit/controls/ui_control.h"
#include "desktop/uikit/graphics/canvas.h"
#include "desktop/uikit/graphics/encodings.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/graphics/ui_image.h"
#include "desktop/uikit/text/interface_fonts.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

// In points.
constexpr CGFloat fontSize = 17;
constexpr CGFloat chevronWidth = 12;
constexpr CGFloat chevronHeight = 21;
constexpr CGFloat chevronGap = 6;
constexpr CGFloat touchMargin = 8;  // taken beside the picture
constexpr double pressedAlpha = 0.2;
constexpr Color disabledColor = Color::white(0.6);

Owned<UIView> makeView() {
  return makeNew<UIView>(BarButtonView::classObject());
}

}  // namespace

Class BarButtonView::classObject() {
  static const Class made = ClassBuilder<BarButtonView>("_UIButtonBarButton")
                                .method<"initWithFrame:", &BarButtonView::initWithFrame>()
                                .method<"layoutSubviews", &BarButtonView::layoutSubviews>()
                                .method<"sizeThatFits:", &BarButtonView::sizeThatFits>()
                                .method<"pointInside:withEvent:", &BarButtonView::pointInside>()
                                .method<"setHighlighted:", &BarButtonView::setHighlighted>()
                                .method<"accessibilityLabel", &BarButtonView::accessibilityLabel>()
                                .method<"_press:", &BarButtonView::press>()
                                .method<"drawContentOn:", &BarButtonView::drawContent>()
                                .build();
  return made;
}

BarButtonView::BarButtonView(id self) : Bound(self), _label(bridge::makeView<UILabel>({})) {}

UIView BarButtonView::initWithFrame(CGRect frame) {
  const auto object = super<UIView, "initWithFrame:">(frame);
  self().addTarget(self(), selector<"_press:">(), bridge::touchUpInside);
  self().addSubview(_label);
  return object;
}

Owned<UIView> BarButtonView::make(UIBarButtonItem item) {
  auto made = makeView();
  of(made.get())._item = Owned<UIBarButtonItem>::retain(item);
  of(made.get()).refresh();
  return made;
}

Owned<UIView> BarButtonView::makeBack(NSString title, std::function<void()> pressed) {
  auto made = makeView();
  BarButtonView& view = of(made.get());
  view._pressed = std::move(pressed);
  view._label->setFont(UIFont::systemFont(fontSize));
  view.setTitle(title);
  view.refresh();
  return made;
}

void BarButtonView::refresh() {
  if (_item) {
    const UIBarButtonItemState& item = UIBarButtonItemState::of(_item.get());
    _label->setFont(item.style() == UIBarButtonItemState::done ? semiboldFont(fontSize)
                                                               : UIFont::systemFont(fontSize));
    setTitle(hasText() ? item.title() : NSString());
    self().setEnabled(item.isEnabled());
  }
  _label->setTextColor(UIColorState::make(color()));
  setNeedsDisplay();
}

void BarButtonView::setTitle(NSString title) {
  _label->setText(title);
  setNeedsLayout();
}

// A picture stands before a title.
bool BarButtonView::hasText() const {
  if (!_item) return true;
  const UIBarButtonItemState& item = UIBarButtonItemState::of(_item.get());
  return !item.image() && !hasGlyph(item.systemItem().value_or(-1));
}

CGFloat BarButtonView::textStart() const {
  return isBack() ? chevronWidth + chevronGap : 0;
}

Color BarButtonView::color() const {
  const auto own = _item ? UIBarButtonItemState::of(_item.get()).tint() : std::nullopt;
  const Color shown = isEnabled() ? own.value_or(tint()) : disabledColor;
  return isHighlighted() ? shown.withAlpha(shown.alpha * pressedAlpha) : shown;
}

std::string BarButtonView::name() const {
  if (hasText()) return _label->text().utf8();
  return std::string(glyphName(UIBarButtonItemState::of(_item.get()).systemItem().value_or(-1)));
}

NSString BarButtonView::accessibilityLabel() const {
  return NSString::make(name());
}

void BarButtonView::layoutSubviews() {
  const CGSize size = self().bounds().size;
  const CGFloat start = textStart();
  _label->setFrame({{start, 0}, {std::max(0.0, size.width - start), size.height}});
}

CGSize BarButtonView::sizeThatFits(CGSize size) const {
  if (hasText()) {
    const CGSize text = _label->sizeThatFits(CGSize{});
    const bool isBare = _label->text().length() == 0;
    return {isBare && isBack() ? chevronWidth : textStart() + text.width, size.height};
  }
  const UIBarButtonItemState& item = UIBarButtonItemState::of(_item.get());
  if (!item.image()) return {glyphSize, size.height};
  return {UIImageState::of(item.image().get()).size().width, size.height};
}

bool BarButtonView::pointInside(CGPoint point, UIEvent) const {
  return contains(inset(self().bounds(), -touchMargin, 0), point);
}

void BarButtonView::setHighlighted(bool isHighlighted) {
  super<void, "setHighlighted:">(isHighlighted);
  refresh();
}

void BarButtonView::press(Object) {
  const auto kept = Owned<UIControl>::retain(self());
  if (_item) return UIBarButtonItemState::of(_item.get()).press(self());
  if (const auto pressed = _pressed) pressed();
}

void BarButtonView::drawContent(Canvas* canvas) const {
  const CGRect bounds = self().bounds();
  if (isBack())
    return drawBackChevron({0, (bounds.size.height - chevronHeight) / 2}, color(), *canvas);
  if (hasText()) return;
  const UIBarButtonItemState& item = UIBarButtonItemState::of(_item.get());
  if (!item.image())
    return drawGlyph(*item.systemItem(), middle(bounds) - CGPoint{glyphSize / 2, glyphSize / 2},
                     color(), *canvas);
  const UIImageState& image = UIImageState::of(item.image().get());
  const CGSize size = image.size();
  canvas->image(image.bitmap(), {middle(bounds) - CGPoint{size.width / 2, size.height / 2}, size});
}

}  // namespace desktop::uikit
