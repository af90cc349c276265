// SPDX-License-Identifier: MIT
//
// Who stands in whom, and who is told that views come and go.
#include <algorithm>

#include "desktop/uikit/base/object_list.h"
#include "desktop/uikit/controllers/ui_view_controller.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

bridge::UIViewController UIViewController::root() const {
  bridge::UIViewController at(self().get());
  while (const auto above = of(at.get())._parent) at = above;
  return at;
}

bridge::UIViewController UIViewController::enclosing(Class aClass) const {
  bridge::UIViewController at = _parent;
  while (at && !bridge::isKindOf(at, aClass)) at = of(at.get())._parent;
  return at;
}

bridge::UIViewController UIViewController::navigationController() const {
  return enclosing(bridge::classNamed<"UINavigationController">());
}

bridge::UIViewController UIViewController::tabBarController() const {
  return enclosing(bridge::classNamed<"UITabBarController">());
}

bridge::NSArray UIViewController::childrenArray() const {
  return arrayOf(_children);
}

void UIViewController::addChild(bridge::UIViewController child) {
  const bridge::UIViewController me(self().get());
  if (!child || root() == child) return;
  const auto kept = bridge::Owned<bridge::UIViewController>::retain(child);
  if (of(child.get())._parent) of(child.get()).removeFromParent();
  bridge::send<void, "willMoveToParentViewController:">(child, me);
  _children.push_back(kept);
  of(child.get())._parent = me;
}

void UIViewController::removeFromParent() {
  if (!_parent) return;
  const bridge::UIViewController me(self().get());
  const auto kept = bridge::Owned<bridge::UIViewController>::retain(me);
  std::erase_if(of(_parent.get())._children, [&](const auto& child) { return child.get() == me; });
  leftParent();
}

void UIViewController::setChildren(
    const std::vector<bridge::Owned<bridge::UIViewController>>& children) {
  const bridge::UIViewController me(self().get());
  for (const auto& child : children) {
    UIViewController& state = of(child.get());
    if (state._parent == me) continue;
    state.removeFromParent();
    bridge::send<void, "willMoveToParentViewController:">(child.get(), me);
    state._parent = me;
  }
  const auto before = std::exchange(_children, children);
  for (const auto& child : children) {
    const bool isNew =
        std::ranges::none_of(before, [&](const auto& known) { return known.get() == child.get(); });
    if (isNew) bridge::send<void, "didMoveToParentViewController:">(child.get(), me);
  }
}

void UIViewController::leftParent() {
  _parent = {};
  bridge::send<void, "didMoveToParentViewController:">(self(), bridge::UIViewController());
}

void UIViewController::beginAppearance(bool comes, bool animated) {
  const bool isSo =
      comes ? _appearance == Appearance::appearing || _appearance == Appearance::shown
            : _appearance == Appearance::gone || _appearance == Appearance::disappearing;
  if (isSo) return;
  _isTransitionAnimated = animated;
  _appearance = comes ? Appearance::appearing : Appearance::disappearing;
  if (comes) {
    view();
    bridge::send<void, "viewWillAppear:">(self(), animated);
  } else {
    bridge::send<void, "viewWillDisappear:">(self(), animated);
  }
  for (const auto& child : shownChildren()) of(child.get()).beginAppearance(comes, animated);
}

void UIViewController::endAppearance() {
  if (_appearance == Appearance::appearing) {
    _appearance = Appearance::shown;
    bridge::send<void, "viewDidAppear:">(self(), _isTransitionAnimated);
  } else if (_appearance == Appearance::disappearing) {
    _appearance = Appearance::gone;
    bridge::send<void, "viewDidDisappear:">(self(), _isTransitionAnimated);
  } else {
    return;
  }
  for (const auto& child : shownChildren()) of(child.get()).endAppearance();
}

void UIViewController::becomeSize(CGSize size) {
  bridge::send<void, "viewWillTransitionToSize:withTransitionCoordinator:">(self(), size,
                                                                            bridge::Object());
  if (const auto above = presented()) of(above.get()).becomeSize(size);
}

// There is no coordinator: sizes change at once.
void UIViewController::viewWillTransition(CGSize size, bridge::Object coordinator) {
  const auto children = _children;
  for (const auto& child : children)
    bridge::send<void, "viewWillTransitionToSize:withTransitionCoordinator:">(child.get(), size,
                                                                              coordinator);
}

std::vector<bridge::Owned<bridge::UIViewController>> UIViewController::shownChildren() const {
  auto shown = _children;
  std::erase_if(shown, [this](const auto& child) {
    const bridge::UIView view = of(child.get())._view;
    return !view || !UIView::of(view.get()).isDescendantOf(_view);
  });
  return shown;
}

}  // namespace desktop::uikit
