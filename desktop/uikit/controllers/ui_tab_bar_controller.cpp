// SPDX-License-Identifier: MIT
//
// One child is selected and lies in the view; selecting another takes the one so far away first,
// each with its appearance messages. The bar stands over the view and goes below it where the
// screen on show hides it.
#include "desktop/uikit/controllers/ui_tab_bar_controller.h"

#include <algorithm>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/bars/ui_tab_bar.h"
#include "desktop/uikit/base/optional_message.h"
#include "desktop/uikit/controllers/ui_navigation_controller.h"
#include "desktop/uikit/overlays/ui_menu_controller.h"
#include "desktop/uikit/views/animator.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

constexpr Seconds slideTime = 0.35;

bool hidesBar(UIViewController controller) {
  return controller.hidesBottomBarWhenPushed();
}

}  // namespace

Class UITabBarControllerState::classObject() {
  using Controller = UITabBarControllerState;
  static const Class made =
      ClassBuilder<Controller>("UITabBarController")
          .method<"loadView", &Controller::loadView>()
          .method<"viewWillAppear:", &Controller::viewWillAppear>()
          .method<"viewWillLayoutSubviews", &Controller::viewWillLayoutSubviews>()
          .method<"viewControllers", &Controller::controllersArray>()
          .method<"setViewControllers:", &Controller::setControllers>()
          .method<"setViewControllers:animated:", &Controller::setControllersAnimated>()
          .method<"selectedViewController", &Controller::selected>()
          .method<"setSelectedViewController:", &Controller::select>()
          .method<"selectedIndex", &Controller::selectedIndex>()
          .method<"setSelectedIndex:", &Controller::setSelectedIndex>()
          .method<"tabBar", &Controller::tabBar>()
          .method<"_updateBar:", &Controller::updateBar>()
          .method<"delegate", &Controller::delegate>()
          .method<"setDelegate:", &Controller::setDelegate>()
          .build();
  return made;
}

UITabBarControllerState::UITabBarControllerState(id self)
    : Bound(self), _bar(makeNew<UIView>(UITabBar::classObject())) {
  UITabBar::of(_bar.get()).setPressed([this](NSUInteger index) { pressed(index); });
}

UITabBarControllerState::~UITabBarControllerState() {
  UITabBar::of(_bar.get()).setPressed({});
}

void UITabBarControllerState::loadView() {
  super<void, "loadView">();
  self().view().addSubview(_bar);
}

NSArray UITabBarControllerState::controllersArray() const {
  return arrayOf(children());
}

NSUInteger UITabBarControllerState::selectedIndex() const {
  const auto& children = UIViewControllerState::children();
  const auto place = std::ranges::find(children, _selected, &Owned<UIViewController>::get);
  return place == children.end() ? static_cast<NSUInteger>(NSNotFound)
                                 : static_cast<NSUInteger>(place - children.begin());
}

void UITabBarControllerState::setControllers(NSArray controllers) {
  const auto before = children();
  const auto next = listOf<UIViewController>(controllers);
  setChildren(next);
  ObjectList<NSObject> items;
  for (const auto& controller : next)
    items.push_back(Owned<NSObject>::retain(controller->tabBarItem()));
  UITabBar::of(_bar.get()).setItems(std::move(items));
  const bool keeps = selectedIndex() != static_cast<NSUInteger>(NSNotFound);
  const UIViewController shown =
      keeps ? _selected : (next.empty() ? UIViewController() : next.front().get());
  select(shown);
  for (const auto& controller : before)
    if (std::ranges::find(next, controller.get(), &Owned<UIViewController>::get) == next.end()) {
      if (const auto view = UIViewControllerState::of(controller.get()).viewIfLoaded())
        view.removeFromSuperview();
      UIViewControllerState::of(controller.get()).leftParent();
    }
}

void UITabBarControllerState::setSelectedIndex(NSUInteger index) {
  const auto& children = UIViewControllerState::children();
  if (index < children.size()) select(children[index]);
}

// The one so far goes before the next one comes; whoever is no child is not selected.
void UITabBarControllerState::select(UIViewController controller) {
  UIViewControllerState& me = *this;
  const auto& children = me.children();
  const auto place = std::ranges::find(children, controller, &Owned<UIViewController>::get);
  if (controller && place == children.end()) return;
  const auto before = Owned<UIViewController>::retain(std::exchange(_selected, controller));
  if (controller) UITabBar::of(_bar.get()).setSelectedItem(controller.tabBarItem());
  if (before.get() == controller || !me.viewIfLoaded()) return;
  const bool isShown = me.appearance() == UIViewControllerState::Appearance::shown;
  const bool isComing = me.appearance() == UIViewControllerState::Appearance::appearing;
  const bool isSeen = isShown || isComing;
  UIMenuControllerState::shared().hide();
  if (controller) controller.view();
  if (isSeen && before) UIViewControllerState::of(before.get()).beginAppearance(false, false);
  if (isSeen && controller)
    UIViewControllerState::of(controller.get()).beginAppearance(true, false);
  showSelected();
  if (isSeen && before) UIViewControllerState::of(before.get()).endAppearance();
  // With all that is coming, the new one is told that it has come.
  if (isShown && controller) UIViewControllerState::of(controller.get()).endAppearance();
}

// Pressing the tab of a stack that is on show leads back to its root.
void UITabBarControllerState::pressed(NSUInteger index) {
  const auto& children = UIViewControllerState::children();
  if (index >= children.size()) return;
  const auto controller = children[index];
  if (!asked<bool, "tabBarController:shouldSelectViewController:">(_delegate, self(),
                                                                   controller.get())
           .value_or(true))
    return;
  if (controller.get() == _selected &&
      isKindOf(controller.get(), UINavigationControllerState::classObject()))
    UINavigationController(controller.get().get()).popToRoot(true);
  self().setSelectedViewController(controller.get());
  told<"tabBarController:didSelectViewController:">(_delegate, self(), controller.get());
}

void UITabBarControllerState::showSelected() {
  for (const auto& child : children()) {
    const auto view = UIViewControllerState::of(child.get()).viewIfLoaded();
    if (view && child.get() != _selected) view.removeFromSuperview();
  }
  const UIView whole = self().view();
  if (_selected && UIViewState::of(_selected.view().get()).superview() != whole) {
    _selected.view().setAutoresizingMask(flexibleWidth | flexibleHeight);
    _selected.view().setFrame(whole.bounds());
    UIViewState::of(whole.get()).insertSubview(_selected.view(), 0);
  }
  _isBarShown = wantsBar();
  arrange();
}

bool UITabBarControllerState::wantsBar() const {
  if (!_selected) return true;
  if (hidesBar(_selected)) return false;
  if (!isKindOf(_selected, UINavigationControllerState::classObject())) return true;
  return std::ranges::none_of(UINavigationControllerState::of(_selected.get()).stack(),
                              [](const auto& each) { return hidesBar(each.get()); });
}

void UITabBarControllerState::updateBar(bool animated) {
  const bool wants = wantsBar();
  if (wants == _isBarShown) return;
  _isBarShown = wants;
  if (!animated) return arrange();
  animator().animate(slideTime, 0, AnimationCurve::easeInOut, [this] { arrange(); }, {});
}

void UITabBarControllerState::viewWillAppear(bool animated) {
  super<void, "viewWillAppear:">(animated);
  showSelected();
}

void UITabBarControllerState::viewWillLayoutSubviews() {
  super<void, "viewWillLayoutSubviews">();
  arrange();
}

// A bar that is hidden stands below the view.
void UITabBarControllerState::arrange() {
  if (!viewIfLoaded()) return;
  const CGSize size = self().view().bounds().size;
  const CGFloat top = _isBarShown ? size.height - UITabBar::height : size.height;
  _bar->setFrame({{0, top}, {size.width, UITabBar::height}});
  EdgeInsets area = safeArea();
  area.bottom = std::max(area.bottom, size.height - top);
  if (_selected) UIViewControllerState::of(_selected.get()).setSafeArea(area);
}

}  // namespace desktop::uikit
