// SPDX-License-Identifier: MIT
//
// The bar keeps a stack of items and shows the one on top through two views, an ordinary title and
// a large one. Everything that changes, from items to colours, ends in `itemsChanged` or
// `updateBackground`, which set those views anew.
#include "desktop/uikit/bars/ui_navigation_bar.h"

#include <algorithm>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/bars/bar_background.h"
#include "desktop/uikit/bars/navigation_bar_titles.h"
#include "desktop/uikit/bars/ui_bar_button_item.h"
#include "desktop/uikit/bars/ui_navigation_item.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

constexpr CGFloat rowHeight = 44;         // points
constexpr CGFloat largeTitleHeight = 52;  // points

template <typename T>
Owned<UIView> makeSubview(UIView bar) {
  auto made = makeNew<UIView>(T::classObject());
  bar.addSubview(made);
  return made;
}

}  // namespace

Class UINavigationBarState::classObject() {
  static const Class made =
      ClassBuilder<UINavigationBarState>("UINavigationBar")
          .method<"initWithFrame:", &UINavigationBarState::initWithFrame>()
          .method<"layoutSubviews", &UINavigationBarState::layoutSubviews>()
          .method<"sizeThatFits:", &UINavigationBarState::sizeThatFits>()
          .method<"barStyle", &UINavigationBarState::barStyle>()
          .method<"setBarStyle:", &UINavigationBarState::setBarStyle>()
          .method<"isTranslucent", &UINavigationBarState::isTranslucent>()
          .method<"setTranslucent:", &UINavigationBarState::setTranslucent>()
          .method<"barTintColor", &UINavigationBarState::barTintColor>()
          .method<"setBarTintColor:", &UINavigationBarState::setBarTintColor>()
          .method<"setTintColor:", &UINavigationBarState::setTintColor>()
          .method<"prefersLargeTitles", &UINavigationBarState::prefersLargeTitles>()
          .method<"setPrefersLargeTitles:", &UINavigationBarState::setPrefersLargeTitles>()
          .method<"topItem", &UINavigationBarState::topItem>()
          .method<"backItem", &UINavigationBarState::backItem>()
          .method<"items", &UINavigationBarState::itemsArray>()
          .method<"setItems:", &UINavigationBarState::setItemsArray>()
          .method<"setItems:animated:", &UINavigationBarState::setItemsArrayAnimated>()
          .method<"pushNavigationItem:animated:", &UINavigationBarState::pushItem>()
          .method<"popNavigationItemAnimated:", &UINavigationBarState::popItem>()
          .method<"_itemChanged", &UINavigationBarState::itemsChanged>()
          .method<"delegate", &UINavigationBarState::delegate>()
          .method<"setDelegate:", &UINavigationBarState::setDelegate>()
          .build();
  return made;
}

UINavigationBarState::UINavigationBarState(id self) : Bound(self) {}

UINavigationBarState::~UINavigationBarState() {
  for (const auto& item : _items) UINavigationItemState::of(item.get()).setBar({});
}

UIView UINavigationBarState::initWithFrame(CGRect frame) {
  const auto object = super<UIView, "initWithFrame:">(frame);
  _background = BarBackground::make(BarBackground::Hairline::bottom);
  self().addSubview(_background);
  _largeTitle = makeSubview<NavigationBarLargeTitleView>(self());
  _content = makeSubview<NavigationBarContentView>(self());
  updateBackground();
  itemsChanged();
  return object;
}

UINavigationItem UINavigationBarState::topItem() const {
  return _items.empty() ? UINavigationItem() : _items.back().get();
}

UINavigationItem UINavigationBarState::backItem() const {
  return _items.size() < 2 ? UINavigationItem() : _items[_items.size() - 2].get();
}

void UINavigationBarState::setItems(Items items) {
  for (const auto& item : _items) UINavigationItemState::of(item.get()).setBar({});
  _items = std::move(items);
  for (const auto& item : _items) UINavigationItemState::of(item.get()).setBar(self());
  itemsChanged();
}

// A bar's items change at once; what slides is told by the controller above.
void UINavigationBarState::pushItem(UINavigationItem item, bool) {
  if (!item) return;
  Items next = _items;
  next.push_back(Owned<UINavigationItem>::retain(item));
  setItems(std::move(next));
}

UINavigationItem UINavigationBarState::popItem(bool) {
  if (_items.empty()) return {};
  auto popped = _items.back();
  Items next = _items;
  next.pop_back();
  setItems(std::move(next));
  return popped.autorelease();
}

// An item that leaves it open does as the one below it.
bool UINavigationBarState::showsLargeTitle() const {
  bool isLarge = _prefersLargeTitles;
  for (const auto& item : _items) {
    const NSInteger mode = UINavigationItemState::of(item.get()).largeTitleDisplayMode();
    if (mode != UINavigationItemState::automatic) isLarge = mode == UINavigationItemState::always;
  }
  return _prefersLargeTitles && isLarge && !_items.empty();
}

CGFloat UINavigationBarState::height() const {
  return showsLargeTitle() ? rowHeight + largeTitleHeight : rowHeight;
}

CGSize UINavigationBarState::sizeThatFits(CGSize size) const {
  return {size.width, height()};
}

// The back button is named after the screen below: by the item for it, else by its title.
void UINavigationBarState::itemsChanged() {
  auto& content = NavigationBarContentView::of(_content.get());
  auto& large = NavigationBarLargeTitleView::of(_largeTitle.get());
  const UINavigationItem top = topItem();
  const bool isLarge = showsLargeTitle();
  const Color color = _style == standard ? colors::black : colors::white;
  NSString title;
  NSString backTitle;
  if (top) {
    const UINavigationItemState& item = UINavigationItemState::of(top.get());
    title = item.title();
    const bool isReplaced = !item.leftItems().empty() && !item.keepsBackButton();
    if (backItem() && !item.hidesBackButton() && !isReplaced) {
      const UINavigationItemState& below = UINavigationItemState::of(backItem().get());
      backTitle = below.backItem() ? UIBarButtonItemState::of(below.backItem().get()).title()
                                   : below.title();
      if (backTitle.length() == 0) backTitle = NSString::make("Back");
    }
  }
  content.show(top);
  content.showBack(backTitle, [this] { back(); });
  content.setTitleLook(color, isLarge);
  large.label().setTextColor(UIColorState::make(color));
  UIViewState::of(_largeTitle.get()).setHidden(!isLarge);
  NavigationTitleView(_content->get()).setTitle(title);
  NavigationTitleView(_largeTitle->get()).setTitle(title);
  setNeedsLayout();
  if (const auto outer = superview(); outer && self().frame().size.height != height())
    UIViewState::of(outer.get()).setNeedsLayout();
}

void UINavigationBarState::back() {
  const auto kept = Owned<UIView>::retain(self());
  if (const auto action = _backAction) return action();
  popItem(false);
}

void UINavigationBarState::setBarStyle(NSInteger style) {
  if (style == _style) return;
  _style = style;
  updateBackground();
  itemsChanged();
}

void UINavigationBarState::setTintColor(UIColor color) {
  super<void, "setTintColor:">(color);
  itemsChanged();
}

void UINavigationBarState::setTranslucent(bool translucent) {
  _isTranslucent = translucent;
  updateBackground();
}

void UINavigationBarState::setBarTintColor(UIColor color) {
  _barTint = Owned<UIColor>::retain(color);
  updateBackground();
}

void UINavigationBarState::setPrefersLargeTitles(bool prefers) {
  if (prefers == _prefersLargeTitles) return;
  _prefersLargeTitles = prefers;
  itemsChanged();
}

void UINavigationBarState::updateBackground() {
  const Color color = _barTint ? UIColorState::valueOf(_barTint) : barColor(_style, _isTranslucent);
  BarBackground::of(_background.get()).setLook(color, barHairline(_style));
}

// The background reaches up behind the status bar.
void UINavigationBarState::layoutSubviews() {
  const CGRect bounds = self().bounds();
  const CGFloat above = std::max(0.0, self().frame().origin.y);
  _background->setFrame({{0, -above}, {bounds.size.width, bounds.size.height + above}});
  _content->setFrame({{0, 0}, {bounds.size.width, rowHeight}});
  _largeTitle->setFrame({{0, rowHeight}, {bounds.size.width, largeTitleHeight}});
}

}  // namespace desktop::uikit
