// SPDX-License-Identifier: MIT
//
// One child is selected and lies in the view; selecting another takes the one so far away first,
// each with its appearance messages. The bar stands over the view and goes below it where the
// screen on show hides it.
#include "desktop/uikit/controllers/ui_tab_bar_controller.h"

#include <algorithm>

#include "bridge/class_builder.h"
#include "desktop/uikit/bars/ui_tab_bar.h"
#include "desktop/uikit/controllers/ui_navigation_controller.h"
#include "desktop/uikit/overlays/ui_menu_controller.h"
#include "desktop/uikit/views/animator.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

using bridge::Owned;

constexpr Seconds slideTime = 0.35;

bool hidesBar(bridge::UIViewController controller) {
  return bridge::send<bool, "hidesBottomBarWhenPushed">(controller);
}

}  // namespace

Class UITabBarController::classObject() {
  using Controller = UITabBarController;
  static const Class made =
      bridge::ClassBuilder<Controller>("UITabBarController")
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

UITabBarController::UITabBarController(id self)
    : Bound(self),
      _bar(Owned<bridge::UIView>::adopt(bridge::send<bridge::UIView, "init">(
          bridge::send<id, "alloc">(UITabBar::classObject())))) {
  UITabBar::of(_bar.get()).setPressed([this](NSUInteger index) { pressed(index); });
}

UITabBarController::~UITabBarController() {
  UITabBar::of(_bar.get()).setPressed({});
}

void UITabBarController::loadView() {
  super<void, "loadView">();
  self().view().addSubview(_bar);
}

bridge::NSArray UITabBarController::controllersArray() const {
  return arrayOf(UIViewController::of(self()).children());
}

NSUInteger UITabBarController::selectedIndex() const {
  const auto& children = UIViewController::of(self()).children();
  const auto place = std::ranges::find(children, _selected, &Owned<bridge::UIViewController>::get);
  return place == children.end() ? static_cast<NSUInteger>(NSNotFound)
                                 : static_cast<NSUInteger>(place - children.begin());
}

void UITabBarController::setControllers(bridge::NSArray controllers) {
  UIViewController& me = UIViewController::of(self());
  const auto before = me.children();
  const auto next = listOf<bridge::UIViewController>(controllers);
  me.setChildren(next);
  ObjectList<bridge::NSObject> items;
  for (const auto& controller : next)
    items.push_back(Owned<bridge::NSObject>::retain(
        bridge::send<bridge::NSObject, "tabBarItem">(controller.get())));
  UITabBar::of(_bar.get()).setItems(std::move(items));
  const bool keeps = selectedIndex() != static_cast<NSUInteger>(NSNotFound);
  const bridge::UIViewController shown =
      keeps ? _selected : (next.empty() ? bridge::UIViewController() : next.front().get());
  select(shown);
  for (const auto& controller : before)
    if (std::ranges::find(next, controller.get(), &Owned<bridge::UIViewController>::get) ==
        next.end()) {
      if (const auto view = UIViewController::of(controller.get()).viewIfLoaded())
        view.removeFromSuperview();
      UIViewController::of(controller.get()).leftParent();
    }
}

void UITabBarController::setSelectedIndex(NSUInteger index) {
  const auto& children = UIViewController::of(self()).children();
  if (index < children.size()) select(children[index]);
}

// The one so far goes before the next one comes; whoever is no child is not selected.
void UITabBarController::select(bridge::UIViewController controller) {
  UIViewController& me = UIViewController::of(self());
  const auto& children = me.children();
  const auto place = std::ranges::find(children, controller, &Owned<bridge::UIViewController>::get);
  if (controller && place == children.end()) return;
  const auto before = Owned<bridge::UIViewController>::retain(std::exchange(_selected, controller));
  if (controller)
    UITabBar::of(_bar.get())
        .setSelectedItem(bridge::send<bridge::NSObject, "tabBarItem">(controller));
  if (before.get() == controller || !me.viewIfLoaded()) return;
  const bool isShown = me.appearance() == UIViewController::Appearance::shown;
  const bool isComing = me.appearance() == UIViewController::Appearance::appearing;
  const bool isSeen = isShown || isComing;
  UIMenuController::shared().hide();
  if (controller) controller.view();
  if (isSeen && before) UIViewController::of(before.get()).beginAppearance(false, false);
  if (isSeen && controller) UIViewController::of(controller.get()).beginAppearance(true, false);
  showSelected();
  if (isSeen && before) UIViewController::of(before.get()).endAppearance();
  // With all that is coming, the new one is told that it has come.
  if (isShown && controller) UIViewController::of(controller.get()).endAppearance();
}

// Pressing the tab of a stack that is on show leads back to its root.
void UITabBarController::pressed(NSUInteger index) {
  const auto& children = UIViewController::of(self()).children();
  if (index >= children.size()) return;
  const auto controller = children[index];
  if (bridge::respondsTo<"tabBarController:shouldSelectViewController:">(_delegate) &&
      !bridge::send<bool, "tabBarController:shouldSelectViewController:">(_delegate, self(),
                                                                          controller.get()))
    return;
  if (controller.get() == _selected &&
      bridge::isKindOf(controller.get(), UINavigationController::classObject()))
    bridge::send<bridge::NSArray, "popToRootViewControllerAnimated:">(controller.get(), true);
  bridge::send<void, "setSelectedViewController:">(self(), controller.get());
  if (bridge::respondsTo<"tabBarController:didSelectViewController:">(_delegate))
    bridge::send<void, "tabBarController:didSelectViewController:">(_delegate, self(),
                                                                    controller.get());
}

void UITabBarController::showSelected() {
  for (const auto& child : UIViewController::of(self()).children()) {
    const auto view = UIViewController::of(child.get()).viewIfLoaded();
    if (view && child.get() != _selected) view.removeFromSuperview();
  }
  const bridge::UIView whole = self().view();
  if (_selected && UIView::of(_selected.view().get()).superview() != whole) {
    _selected.view().setAutoresizingMask(bridge::flexibleWidth | bridge::flexibleHeight);
    _selected.view().setFrame(whole.bounds());
    UIView::of(whole.get()).insertSubview(_selected.view(), 0);
  }
  _isBarShown = wantsBar();
  arrange();
}

bool UITabBarController::wantsBar() const {
  if (!_selected) return true;
  if (hidesBar(_selected)) return false;
  if (!bridge::isKindOf(_selected, UINavigationController::classObject())) return true;
  return std::ranges::none_of(UINavigationController::of(_selected.get()).stack(),
                              [](const auto& each) { return hidesBar(each.get()); });
}

void UITabBarController::updateBar(bool animated) {
  const bool wants = wantsBar();
  if (wants == _isBarShown) return;
  _isBarShown = wants;
  if (!animated) return arrange();
  animator().animate(slideTime, 0, AnimationCurve::easeInOut, [this] { arrange(); }, {});
}

void UITabBarController::viewWillAppear(bool animated) {
  super<void, "viewWillAppear:">(animated);
  showSelected();
}

void UITabBarController::viewWillLayoutSubviews() {
  super<void, "viewWillLayoutSubviews">();
  arrange();
}

// A bar that is hidden stands below the view.
void UITabBarController::arrange() {
  if (!UIViewController::of(self()).viewIfLoaded()) return;
  const CGSize size = self().view().bounds().size;
  const CGFloat top = _isBarShown ? size.height - UITabBar::height : size.height;
  _bar->setFrame({{0, top}, {size.width, UITabBar::height}});
  EdgeInsets area = UIViewController::of(self()).safeArea();
  area.bottom = std::max(area.bottom, size.height - top);
  if (_selected) UIViewController::of(_selected.get()).setSafeArea(area);
}

}  // namespace desktop::uikit
