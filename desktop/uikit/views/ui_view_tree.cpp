// SPDX-License-Identifier: MIT
//
// Who is whose subview, and which gestures a view has. A view keeps its subviews alive and knows
// its superview without keeping it. Coming and going is told before and after, and a view that
// leaves the window ends what was under way: animations and touches.
#include <algorithm>

#include "desktop/uikit/base/own_messages.h"
#include "desktop/uikit/views/animator.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

template <typename T>
NSArray arrayOf(const std::vector<Owned<T>>& objects) {
  const auto all = makeNew<NSMutableArray>();
  for (const auto& object : objects) all->add(object.get());
  return Owned<NSArray>::retain(all.get()).autorelease();
}

}  // namespace

UIView UIViewState::window() const {
  UIView top(self().get());
  while (const UIView above = of(top.get())._superview) top = above;
  return of(top.get())._isWindow ? top : UIView();
}

bool UIViewState::isDescendantOf(UIView view) const {
  UIView at(self().get());
  while (at && at != view) at = of(at.get())._superview;
  return static_cast<bool>(at);
}

NSArray UIViewState::subviewsArray() const {
  return arrayOf(_subviews);
}

// A view that contains this one cannot become its subview.
void UIViewState::insertSubview(UIView view, std::size_t index) {
  const UIView me(self().get());
  if (!view || isDescendantOf(view)) return;
  const auto kept = Owned<UIView>::retain(view);
  UIViewState& child = of(view.get());
  const UIView windowBefore = child.window();
  if (child._superview) of(child._superview.get()).detach(view);
  view.willMoveToSuperview(me);
  index = std::min(index, _subviews.size());
  _subviews.insert(_subviews.begin() + static_cast<std::ptrdiff_t>(index), kept);
  child._superview = me;
  view.didMoveToSuperview();
  if (child.window() != windowBefore) child.tellMovedToWindow();
  setNeedsLayout();
  child.setNeedsDisplay();
}

void UIViewState::addSubview(UIView view) {
  insertSubview(view, _subviews.size());
}

void UIViewState::insertSubviewAtIndex(UIView view, NSInteger index) {
  insertSubview(view, static_cast<std::size_t>(std::max(index, 0L)));
}

void UIViewState::insertAbove(UIView view, UIView sibling) {
  const auto place = std::ranges::find(_subviews, sibling, &Owned<UIView>::get);
  const auto index = static_cast<std::size_t>(place - _subviews.begin());
  insertSubview(view, place == _subviews.end() ? index : index + 1);
}

void UIViewState::insertBelow(UIView view, UIView sibling) {
  const auto place = std::ranges::find(_subviews, sibling, &Owned<UIView>::get);
  insertSubview(view, static_cast<std::size_t>(place - _subviews.begin()));
}

void UIViewState::bringToFront(UIView view) {
  const auto place = std::ranges::find(_subviews, view, &Owned<UIView>::get);
  if (place == _subviews.end()) return;
  std::rotate(place, place + 1, _subviews.end());
  of(view.get()).setNeedsDisplay();
}

void UIViewState::sendToBack(UIView view) {
  const auto place = std::ranges::find(_subviews, view, &Owned<UIView>::get);
  if (place == _subviews.end()) return;
  std::rotate(_subviews.begin(), place, place + 1);
  of(view.get()).setNeedsDisplay();
}

void UIViewState::removeFromSuperview() {
  if (!_superview) return;
  const UIView me(self().get());
  const auto kept = Owned<UIView>::retain(me);
  const bool wasInWindow = static_cast<bool>(window());
  me.willMoveToSuperview(UIView());
  of(_superview.get()).detach(me);
  me.didMoveToSuperview();
  if (wasInWindow) tellMovedToWindow();
}

void UIViewState::detach(UIView subview) {
  of(subview.get()).setNeedsDisplay();
  of(subview.get())._superview = {};
  std::erase_if(_subviews, [&](const auto& view) { return view.get() == subview; });
  setNeedsLayout();
}

// What leaves the window is no longer shown: its animations and gestures end there.
void UIViewState::tellMovedToWindow() {
  const UIView me(self().get());
  if (!window()) {
    animator().stop(me);
    const auto recognizers = _gestureRecognizers;
    for (const auto& recognizer : recognizers) leaveTouches(recognizer.get());
  }
  me.didMoveToWindow();
  const auto children = _subviews;
  for (const auto& child : children) of(child.get()).tellMovedToWindow();
}

UIView UIViewState::viewWithTag(NSInteger tag) {
  if (_tag == tag) return UIView(self().get());
  for (const auto& view : _subviews)
    if (const auto found = of(view.get()).viewWithTag(tag)) return found;
  return {};
}

UIResponder UIViewState::nextResponder() const {
  return _controller ? _controller : UIResponder(_superview.get());
}

NSArray UIViewState::gestureRecognizersArray() const {
  return _gestureRecognizers.empty() ? NSArray() : arrayOf(_gestureRecognizers);
}

void UIViewState::addGestureRecognizer(UIGestureRecognizer recognizer) {
  if (!recognizer) return;
  const auto kept = Owned<UIGestureRecognizer>::retain(recognizer);
  const auto before = recognizer.view();
  before.removeGestureRecognizer(recognizer);
  _gestureRecognizers.push_back(kept);
  moveTo(recognizer, self());
}

void UIViewState::removeGestureRecognizer(UIGestureRecognizer recognizer) {
  const auto place =
      std::ranges::find(_gestureRecognizers, recognizer, &Owned<UIGestureRecognizer>::get);
  if (place == _gestureRecognizers.end()) return;
  moveTo(recognizer, UIView());
  _gestureRecognizers.erase(place);
}

}  // namespace desktop::uikit
