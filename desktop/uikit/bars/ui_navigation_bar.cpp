// SPDX-License-Identifier: MIT
//
// The bar keeps a stack of items and shows the one on top through two views, an ordinary title and
// a large one. Everything that changes, from items to colours, ends in `itemsChanged` or
// `updateBackground`, which set those views anew.
#include "desktop/uikit/bars/ui_navigation_bar.h"

#include <algorithm>

#include "bridge/class_builder.h"
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
bridge::Owned<bridge::UIView> makeSubview(bridge::UIView bar) {
  auto made = bridge::Owned<bridge::UIView>::adopt(
      bridge::send<bridge::UIView, "init">(bridge::send<id, "alloc">(T::classObject())));
  bar.addSubview(made);
  return made;
}

}  // namespace

Class UINavigationBar::classObject() {
  static const Class made =
      bridge::ClassBuilder<UINavigationBar>("UINavigationBar")
          .method<"initWithFrame:", &UINavigationBar::initWithFrame>()
          .method<"layoutSubviews", &UINavigationBar::layoutSubviews>()
          .method<"sizeThatFits:", &UINavigationBar::sizeThatFits>()
          .method<"barStyle", &UINavigationBar::barStyle>()
          .method<"setBarStyle:", &UINavigationBar::setBarStyle>()
          .method<"isTranslucent", &UINavigationBar::isTranslucent>()
          .method<"setTranslucent:", &UINavigationBar::setTranslucent>()
          .method<"barTintColor", &UINavigationBar::barTintColor>()
          .method<"setBarTintColor:", &UINavigationBar::setBarTintColor>()
          .method<"setTintColor:", &UINavigationBar::setTintColor>()
          .method<"prefersLargeTitles", &UINavigationBar::prefersLargeTitles>()
          .method<"setPrefersLargeTitles:", &UINavigationBar::setPrefersLargeTitles>()
          .method<"topItem", &UINavigationBar::topItem>()
          .method<"backItem", &UINavigationBar::backItem>()
          .method<"items", &UINavigationBar::itemsArray>()
          .method<"setItems:", &UINavigationBar::setItemsArray>()
          .method<"setItems:animated:", &UINavigationBar::setItemsArrayAnimated>()
          .method<"pushNavigationItem:animated:", &UINavigationBar::pushItem>()
          .method<"popNavigationItemAnimated:", &UINavigationBar::popItem>()
          .method<"_itemChanged", &UINavigationBar::itemsChanged>()
          .method<"delegate", &UINavigationBar::delegate>()
          .method<"setDelegate:", &UINavigationBar::setDelegate>()
          .build();
  return made;
}

UINavigationBar::UINavigationBar(id self) : Bound(self) {}

UINavigationBar::~UINavigationBar() {
  for (const auto& item : _items) UINavigationItem::of(item.get()).setBar({});
}

bridge::UIView UINavigationBar::initWithFrame(CGRect frame) {
  const auto object = super<bridge::UIView, "initWithFrame:">(frame);
  _background = BarBackground::make(BarBackground::Hairline::bottom);
  self().addSubview(_background);
  _largeTitle = makeSubview<NavigationBarLargeTitleView>(self());
  _content = makeSubview<NavigationBarContentView>(self());
  updateBackground();
  itemsChanged();
  return object;
}

bridge::UINavigationItem UINavigationBar::topItem() const {
  return _items.empty() ? bridge::UINavigationItem() : _items.back().get();
}

bridge::UINavigationItem UINavigationBar::backItem() const {
  return _items.size() < 2 ? bridge::UINavigationItem() : _items[_items.size() - 2].get();
}

void UINavigationBar::setItems(Items items) {
  for (const auto& item : _items) UINavigationItem::of(item.get()).setBar({});
  _items = std::move(items);
  for (const auto& item : _items) UINavigationItem::of(item.get()).setBar(self());
  itemsChanged();
}

void UINavigationBar::pushItem(bridge::UINavigationItem item, bool) {
  if (!item) return;
  Items next = _items;
  next.push_back(bridge::Owned<bridge::UINavigationItem>::retain(item));
  setItems(std::move(next));
}

bridge::UINavigationItem UINavigationBar::popItem(bool) {
  if (_items.empty()) return {};
  auto popped = _items.back();
  Items next = _items;
  next.pop_back();
  setItems(std::move(next));
  return popped.autorelease();
}

// An item that leaves it open does as the one below it.
bool UINavigationBar::showsLargeTitle() const {
  bool isLarge = _prefersLargeTitles;
  for (const auto& item : _items) {
    const NSInteger mode = UINavigationItem::of(item.get()).largeTitleDisplayMode();
    if (mode != UINavigationItem::automatic) isLarge = mode == UINavigationItem::always;
  }
  return _prefersLargeTitles && isLarge && !_items.empty();
}

CGFloat UINavigationBar::height() const {
  return showsLargeTitle() ? rowHeight + largeTitleHeight : rowHeight;
}

CGSize UINavigationBar::sizeThatFits(CGSize size) const {
  return {size.width, height()};
}

// The back button is named after the screen below: by the item for it, else by its title.
void UINavigationBar::itemsChanged() {
  auto& content = NavigationBarContentView::of(_content.get());
  auto& large = NavigationBarLargeTitleView::of(_largeTitle.get());
  const bridge::UINavigationItem top = topItem();
  const bool isLarge = showsLargeTitle();
  const Color color = _style == standard ? colors::black : colors::white;
  bridge::NSString title;
  bridge::NSString backTitle;
  if (top) {
    const UINavigationItem& item = UINavigationItem::of(top.get());
    title = item.title();
    const bool isReplaced = !item.leftItems().empty() && !item.keepsBackButton();
    if (backItem() && !item.hidesBackButton() && !isReplaced) {
      const UINavigationItem& below = UINavigationItem::of(backItem().get());
      backTitle =
          below.backItem() ? UIBarButtonItem::of(below.backItem().get()).title() : below.title();
      if (backTitle.length() == 0) backTitle = bridge::NSString::make("Back");
    }
  }
  content.show(top);
  content.showBack(backTitle, [this] { back(); });
  content.setTitleLook(color, isLarge);
  large.label().setTextColor(UIColor::make(color));
  UIView::of(_largeTitle.get()).setHidden(!isLarge);
  bridge::send<void, "setTitle:">(_content.get(), title);
  bridge::send<void, "setTitle:">(_largeTitle.get(), title);
  UIView::of(self()).setNeedsLayout();
  if (const auto outer = UIView::of(self()).superview();
      outer && self().frame().size.height != height())
    UIView::of(outer.get()).setNeedsLayout();
}

void UINavigationBar::back() {
  const auto kept = bridge::Owned<bridge::UIView>::retain(self());
  if (const auto action = _backAction) return action();
  popItem(false);
}

void UINavigationBar::setBarStyle(NSInteger style) {
  if (style == _style) return;
  _style = style;
  updateBackground();
  itemsChanged();
}

void UINavigationBar::setTintColor(bridge::UIColor color) {
  super<void, "setTintColor:">(color);
  itemsChanged();
}

void UINavigationBar::setTranslucent(bool translucent) {
  _isTranslucent = translucent;
  updateBackground();
}

void UINavigationBar::setBarTintColor(bridge::UIColor color) {
  _barTint = bridge::Owned<bridge::UIColor>::retain(color);
  updateBackground();
}

void UINavigationBar::setPrefersLargeTitles(bool prefers) {
  if (prefers == _prefersLargeTitles) return;
  _prefersLargeTitles = prefers;
  itemsChanged();
}

void UINavigationBar::updateBackground() {
  const Color color = _barTint ? UIColor::valueOf(_barTint) : barColor(_style, _isTranslucent);
  BarBackground::of(_background.get()).setLook(color, barHairline(_style));
}

// The background reaches up behind the status bar.
void UINavigationBar::layoutSubviews() {
  const CGRect bounds = self().bounds();
  const CGFloat above = std::max(0.0, self().frame().origin.y);
  _background->setFrame({{0, -above}, {bounds.size.width, bounds.size.height + above}});
  _content->setFrame({{0, 0}, {bounds.size.width, rowHeight}});
  _largeTitle->setFrame({{0, rowHeight}, {bounds.size.width, largeTitleHeight}});
}

}  // namespace desktop::uikit
