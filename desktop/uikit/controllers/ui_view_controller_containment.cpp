// SPDX-License-Identifier: MIT
//
// Who stands in whom, and who is told that views come and go.
#include <algorithm>

#include "desktop/uikit/base/object_list.h"
#include "desktop/uikit/controllers/ui_view_controller.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

UIViewController UIViewControllerState::root() const {
  UIViewController at(self().get());
  while (const auto above = of(at.get())._parent) at = above;
  return at;
}

UIViewController UIViewControllerState::enclosing(Class aClass) const {
  UIViewController at = _parent;
  while (at && !isKindOf(at, aClass)) at = of(at.get())._parent;
  return at;
}

UIViewController UIViewControllerState::navigationController() const {
  return enclosing(classNamed<"UINavigationController">());
}

UIViewController UIViewControllerState::tabBarController() const {
  return enclosing(classNamed<"UITabBarController">());
}

NSArray UIViewControllerState::childrenArray() const {
  return arrayOf(_children);
}

void UIViewControllerState::addChild(UIViewController child) {
  const UIViewController me(self().get());
  if (!child || root() == child) return;
  const auto kept = Owned<UIViewController>::retain(child);
  if (of(child.get())._parent) of(child.get()).removeFromParent();
  child.willMoveToParent(me);
  _children.push_back(kept);
  of(child.get())._parent = me;
}

void UIViewControllerState::removeFromParent() {
  if (!_parent) return;
  const UIViewController me(self().get());
  const auto kept = Owned<UIViewController>::retain(me);
  std::erase_if(of(_parent.get())._children, [&](const auto& child) { return child.get() == me; });
  leftParent();
}

void UIViewControllerState::setChildren(const std::vector<Owned<UIViewController>>& children) {
  const UIViewController me(self().get());
  for (const auto& child : children) {
    UIViewControllerState& state = of(child.get());
    if (state._parent == me) continue;
    state.removeFromParent();
    child->willMoveToParent(me);
    state._parent = me;
  }
  const auto before = std::exchange(_children, children);
  for (const auto& child : children) {
    const bool isNew =
        std::ranges::none_of(before, [&](const auto& known) { return known.get() == child.get(); });
    if (isNew) child->didMoveToParent(me);
  }
}

void UIViewControllerState::leftParent() {
  _parent = {};
  self().didMoveToParent(UIViewController());
}

void UIViewControllerState::beginAppearance(bool comes, bool animated) {
  const bool isSo =
      comes ? _appearance == Appearance::appearing || _appearance == Appearance::shown
            : _appearance == Appearance::gone || _appearance == Appearance::disappearing;
  if (isSo) return;
  _isTransitionAnimated = animated;
  _appearance = comes ? Appearance::appearing : Appearance::disappearing;
  if (comes) {
    view();
    self().viewWillAppear(animated);
  } else {
    self().viewWillDisappear(animated);
  }
  for (const auto& child : shownChildren()) of(child.get()).beginAppearance(comes, animated);
}

void UIViewControllerState::endAppearance() {
  if (_appearance == Appearance::appearing) {
    _appearance = Appearance::shown;
    self().viewDidAppear(_isTransitionAnimated);
  } else if (_appearance == Appearance::disappearing) {
    _appearance = Appearance::gone;
    self().viewDidDisappear(_isTransitionAnimated);
  } else {
    return;
  }
  for (const auto& child : shownChildren()) of(child.get()).endAppearance();
}

void UIViewControllerState::becomeSize(CGSize size) {
  self().viewWillTransition(size, Object());
  if (const auto above = presented()) of(above.get()).becomeSize(size);
}

// There is no coordinator: sizes change at once.
void UIViewControllerState::viewWillTransition(CGSize size, Object coordinator) {
  const auto children = _children;
  for (const auto& child : children) child->viewWillTransition(size, coordinator);
}

std::vector<Owned<UIViewController>> UIViewControllerState::shownChildren() const {
  auto shown = _children;
  std::erase_if(shown, [this](const auto& child) {
    const UIView view = of(child.get())._view;
    return !view || !UIViewState::of(view.get()).isDescendantOf(_view);
  });
  return shown;
}

}  // namespace desktop::uikit
