// SPDX-License-Identifier: MIT
//
// Both titles show the item on top. The ordinary one shares its bar: the back button takes its
// place at the left first, the buttons at the right theirs, and the title stands in the middle of
// the bar or as near to it as they leave room. The large one has a row of its own.
#include "desktop/uikit/bars/navigation_bar_titles.h"

#include <algorithm>

#include "bridge/class_builder.h"
#include "desktop/uikit/bars/bar_button_view.h"
#include "desktop/uikit/bars/ui_navigation_item.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/text/interface_fonts.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

// In points.
constexpr CGFloat margin = 16;     // at the sides of the bar
constexpr CGFloat backMargin = 8;  // before the arrow of the back button
constexpr CGFloat itemGap = 8;     // between two items
constexpr CGFloat titleGap = 8;    // between title and buttons, at least
constexpr CGFloat titleSize = 17;
constexpr CGFloat largeTitleSize = 34;
constexpr CGFloat largeTitleHeight = 41;
constexpr CGFloat largeTitleBottom = 8;

CGFloat fittingWidth(bridge::UIView view, CGFloat height) {
  return bridge::send<CGSize, "sizeThatFits:">(view, CGSize{0, height}).width;
}

}  // namespace

Class NavigationBarContentView::classObject() {
  using View = NavigationBarContentView;
  static const Class made = bridge::ClassBuilder<View>("_UINavigationBarContentView")
                                .method<"initWithFrame:", &View::initWithFrame>()
                                .method<"title", &View::title>()
                                .method<"setTitle:", &View::setTitle>()
                                .method<"_itemChanged", &View::itemChanged>()
                                .method<"layoutSubviews", &View::layoutSubviews>()
                                .build();
  return made;
}

NavigationBarContentView::NavigationBarContentView(id self)
    : Bound(self),
      _label(bridge::makeView<bridge::UILabel>({})),
      _left(bridge::UIView(self)),
      _right(bridge::UIView(self)) {}

bridge::UIView NavigationBarContentView::initWithFrame(CGRect frame) {
  const auto object = super<bridge::UIView, "initWithFrame:">(frame);
  _label->setFont(semiboldFont(titleSize));
  _label->setTextAlignment(bridge::alignCenter);
  self().addSubview(_label);
  return object;
}

void NavigationBarContentView::setTitle(bridge::NSString title) {
  _label->setText(title);
  UIView::of(self()).setNeedsLayout();
}

void NavigationBarContentView::setTitleLook(Color color, bool isHidden) {
  _label->setTextColor(UIColor::make(color));
  _isTitleHidden = isHidden;
  UIView::of(_label.get()).setHidden(isHidden || _titleView);
}

void NavigationBarContentView::show(bridge::UINavigationItem item) {
  static const UINavigationItem::Items none;
  const UINavigationItem* state = item ? &UINavigationItem::of(item.get()) : nullptr;
  _left.show(state ? state->leftItems() : none);
  _right.show(state ? state->rightItems() : none);
  const bridge::UIView titleView = state ? state->titleView() : bridge::UIView();
  if (titleView != _titleView.get()) {
    if (_titleView) _titleView->removeFromSuperview();
    _titleView = bridge::Owned<bridge::UIView>::retain(titleView);
    if (_titleView) self().addSubview(_titleView);
  }
  UIView::of(_label.get()).setHidden(_isTitleHidden || _titleView);
  UIView::of(self()).setNeedsLayout();
}

void NavigationBarContentView::showBack(bridge::NSString title,
                                        const std::function<void()>& pressed) {
  _backTitle = bridge::Owned<bridge::NSString>::retain(title);
  if (!title == !_backButton) {
    if (_backButton) BarButtonView::of(_backButton.get()).refresh();
  } else if (title) {
    _backButton = BarButtonView::makeBack(title, pressed);
    self().addSubview(_backButton);
  } else {
    _backButton->removeFromSuperview();
    _backButton.reset();
  }
  UIView::of(self()).setNeedsLayout();
}

void NavigationBarContentView::itemChanged() {
  bridge::send<void, "_itemChanged">(UIView::of(self()).superview());
}

CGFloat NavigationBarContentView::titleWidth() const {
  if (_titleView) return _titleView->bounds().size.width;
  return _isTitleHidden ? 0 : fittingWidth(_label, self().bounds().size.height);
}

// Answers where the room of the title begins. The whole name of the screen below, else "Back",
// else the arrow alone.
CGFloat NavigationBarContentView::placeLeft() {
  const CGSize size = self().bounds().size;
  CGFloat x = margin;
  if (_backButton) {
    BarButtonView& back = BarButtonView::of(_backButton.get());
    const CGFloat room = std::max((size.width - titleWidth()) / 2 - titleGap - backMargin, 0.0);
    for (const auto title :
         {_backTitle.get(), bridge::NSString::make("Back"), bridge::NSString::make("")}) {
      back.setTitle(title);
      if (fittingWidth(_backButton, size.height) <= room) break;
    }
    const CGFloat width = fittingWidth(_backButton, size.height);
    _backButton->setFrame({{backMargin, 0}, {width, size.height}});
    x = backMargin + width + itemGap;
  }
  for (const BarSlot& slot : _left.slots()) {
    BarSlots::place(slot, x, size.height);
    x += BarSlots::widthOf(slot, size.height) + (slot.view ? itemGap : 0);
  }
  return x;
}

CGFloat NavigationBarContentView::placeRight() {
  const CGSize size = self().bounds().size;
  CGFloat x = size.width - margin;
  for (const BarSlot& slot : _right.slots()) {
    x -= BarSlots::widthOf(slot, size.height);
    BarSlots::place(slot, x, size.height);
    if (slot.view) x -= itemGap;
  }
  return x;
}

// In the middle of the bar, or as near to it as the buttons leave room.
void NavigationBarContentView::placeTitle(CGFloat left, CGFloat right) {
  const CGSize size = self().bounds().size;
  const CGFloat width = std::clamp(titleWidth(), 0.0, std::max(0.0, right - left));
  const CGFloat x = std::max(left, std::min((size.width - width) / 2, right - width));
  if (!_titleView) return _label->setFrame({{x, 0}, {width, size.height}});
  const CGFloat height = _titleView->bounds().size.height;
  _titleView->setFrame({{x, (size.height - height) / 2}, {width, height}});
}

void NavigationBarContentView::layoutSubviews() {
  const CGFloat left = placeLeft();
  const CGFloat right = placeRight();
  placeTitle(left, right);
}

Class NavigationBarLargeTitleView::classObject() {
  using View = NavigationBarLargeTitleView;
  static const Class made = bridge::ClassBuilder<View>("_UINavigationBarLargeTitleView")
                                .method<"initWithFrame:", &View::initWithFrame>()
                                .method<"title", &View::title>()
                                .method<"setTitle:", &View::setTitle>()
                                .method<"layoutSubviews", &View::layoutSubviews>()
                                .build();
  return made;
}

NavigationBarLargeTitleView::NavigationBarLargeTitleView(id self)
    : Bound(self), _label(bridge::makeView<bridge::UILabel>({})) {}

bridge::UIView NavigationBarLargeTitleView::initWithFrame(CGRect frame) {
  const auto object = super<bridge::UIView, "initWithFrame:">(frame);
  _label->setFont(boldFont(largeTitleSize));
  self().addSubview(_label);
  self().setClipsToBounds(true);
  return object;
}

void NavigationBarLargeTitleView::setTitle(bridge::NSString title) {
  _label->setText(title);
}

void NavigationBarLargeTitleView::layoutSubviews() {
  const CGSize size = self().bounds().size;
  _label->setFrame({{margin, size.height - largeTitleBottom - largeTitleHeight},
                    {std::max(0.0, size.width - 2 * margin), largeTitleHeight}});
}

}  // namespace desktop::uikit
