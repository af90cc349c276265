// SPDX-License-Identifier: MIT
//
// Both titles show the item on top. The ordinary one shares its bar: the back button takes its
// place at the left first, the buttons at the right theirs, and the title stands in the middle of
// the bar or as near to it as they leave room. The large one has a row of its own.
#include "desktop/uikit/bars/navigation_bar_titles.h"

#include <algorithm>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/bars/bar_button_view.h"
#include "desktop/uikit/bars/ui_navigation_item.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/base/own_messages.h"
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

CGFloat fittingWidth(UIView view, CGFloat height) {
  return view.sizeThatFits(CGSize{0, height}).width;
}

}  // namespace

Class NavigationBarContentView::classObject() {
  using View = NavigationBarContentView;
  static const Class made = ClassBuilder<View>("_UINavigationBarContentView")
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
      _label(bridge::makeView<UILabel>({})),
      _left(UIView(self)),
      _right(UIView(self)) {}

UIView NavigationBarContentView::initWithFrame(CGRect frame) {
  const auto object = super<UIView, "initWithFrame:">(frame);
  _label->setFont(semiboldFont(titleSize));
  _label->setTextAlignment(alignCenter);
  self().addSubview(_label);
  return object;
}

void NavigationBarContentView::setTitle(NSString title) {
  _label->setText(title);
  setNeedsLayout();
}

void NavigationBarContentView::setTitleLook(Color color, bool isHidden) {
  _label->setTextColor(UIColorState::make(color));
  _isTitleHidden = isHidden;
  UIViewState::of(_label.get()).setHidden(isHidden || _titleView);
}

void NavigationBarContentView::show(UINavigationItem item) {
  static const UINavigationItemState::Items none;
  const UINavigationItemState* state = item ? &UINavigationItemState::of(item.get()) : nullptr;
  _left.show(state ? state->leftItems() : none);
  _right.show(state ? state->rightItems() : none);
  const UIView titleView = state ? state->titleView() : UIView();
  if (titleView != _titleView.get()) {
    if (_titleView) _titleView->removeFromSuperview();
    _titleView = Owned<UIView>::retain(titleView);
    if (_titleView) self().addSubview(_titleView);
  }
  UIViewState::of(_label.get()).setHidden(_isTitleHidden || _titleView);
  setNeedsLayout();
}

void NavigationBarContentView::showBack(NSString title, const std::function<void()>& pressed) {
  _backTitle = Owned<NSString>::retain(title);
  if (!title == !_backButton) {
    if (_backButton) BarButtonView::of(_backButton.get()).refresh();
  } else if (title) {
    _backButton = BarButtonView::makeBack(title, pressed);
    self().addSubview(_backButton);
  } else {
    _backButton->removeFromSuperview();
    _backButton.reset();
  }
  setNeedsLayout();
}

void NavigationBarContentView::itemChanged() {
  uikit::itemChanged(superview());
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
    for (const auto title : {_backTitle.get(), NSString::make("Back"), NSString::make("")}) {
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
  static const Class made = ClassBuilder<View>("_UINavigationBarLargeTitleView")
                                .method<"initWithFrame:", &View::initWithFrame>()
                                .method<"title", &View::title>()
                                .method<"setTitle:", &View::setTitle>()
                                .method<"layoutSubviews", &View::layoutSubviews>()
                                .build();
  return made;
}

NavigationBarLargeTitleView::NavigationBarLargeTitleView(id self)
    : Bound(self), _label(bridge::makeView<UILabel>({})) {}

UIView NavigationBarLargeTitleView::initWithFrame(CGRect frame) {
  const auto object = super<UIView, "initWithFrame:">(frame);
  _label->setFont(boldFont(largeTitleSize));
  self().addSubview(_label);
  self().setClipsToBounds(true);
  return object;
}

void NavigationBarLargeTitleView::setTitle(NSString title) {
  _label->setText(title);
}

void NavigationBarLargeTitleView::layoutSubviews() {
  const CGSize size = self().bounds().size;
  _label->setFrame({{margin, size.height - largeTitleBottom - largeTitleHeight},
                    {std::max(0.0, size.width - 2 * margin), largeTitleHeight}});
}

}  // namespace desktop::uikit
