// SPDX-License-Identifier: MIT
//
// Who is whose subview, and which gestures a view has. A view keeps its subviews alive and knows
// its superview without keeping it. Coming and going is told before and after, and a view that
// leaves the window ends what was under way: animations and touches.
#include <algorithm>

#include "desktop/uikit/views/animator.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

template <typename T>
bridge::NSArray arrayOf(const std::vector<bridge::Owned<T>>& objects) {
  const auto all = bridge::makeNew<bridge::NSMutableArray>();
  for (const auto& object : objects) all->add(object.get());
  return bridge::Owned<bridge::NSArray>::retain(all.get()).autorelease();
}

}  // namespace

bridge::UIView UIView::window() const {
  bridge::UIView top(self().get());
  while (const bridge::UIView above = of(top.get())._superview) top = above;
  return of(top.get())._isWindow ? top : bridge::UIView();
}

bool UIView::isDescendantOf(bridge::UIView view) const {
  bridge::UIView at(self().get());
  while (at && at != view) at = of(at.get())._superview;
  return static_cast<bool>(at);
}

bridge::NSArray UIView::subviewsArray() const {
  return arrayOf(_subviews);
}

// A view that contains this one cannot become its subview.
void UIView::insertSubview(bridge::UIView view, std::size_t index) {
  const bridge::UIView me(self().get());
  if (!view || isDescendantOf(view)) return;
  const auto kept = bridge::Owned<bridge::UIView>::retain(view);
  UIView& child = of(view.get());
  const bridge::UIView windowBefore = child.window();
  if (child._superview) of(child._superview.get()).detach(view);
  bridge::send<void, "willMoveToSuperview:">(view, me);
  index = std::min(index, _subviews.size());
  _subviews.insert(_subviews.begin() + static_cast<std::ptrdiff_t>(index), kept);
  child._superview = me;
  bridge::send<void, "didMoveToSuperview">(view);
  if (child.window() != windowBefore) child.tellMovedToWindow();
  setNeedsLayout();
  child.setNeedsDisplay();
}

void UIView::addSubview(bridge::UIView view) {
  insertSubview(view, _subviews.size());
}

void UIView::insertSubviewAtIndex(bridge::UIView view, NSInteger index) {
  insertSubview(view, static_cast<std::size_t>(std::max(index, 0L)));
}

void UIView::insertAbove(bridge::UIView view, bridge::UIView sibling) {
  const auto place = std::ranges::find(_subviews, sibling, &bridge::Owned<bridge::UIView>::get);
  const auto index = static_cast<std::size_t>(place - _subviews.begin());
  insertSubview(view, place == _subviews.end() ? index : index + 1);
}

void UIView::insertBelow(bridge::UIView view, bridge::UIView sibling) {
  const auto place = std::ranges::find(_subviews, sibling, &bridge::Owned<bridge::UIView>::get);
  insertSubview(view, static_cast<std::size_t>(place - _subviews.begin()));
}

void UIView::bringToFront(bridge::UIView view) {
  const auto place = std::ranges::find(_subviews, view, &bridge::Owned<bridge::UIView>::get);
  if (place == _subviews.end()) return;
  std::rotate(place, place + 1, _subviews.end());
  of(view.get()).setNeedsDisplay();
}

void UIView::sendToBack(bridge::UIView view) {
  const auto place = std::ranges::find(_subviews, view, &bridge::Owned<bridge::UIView>::get);
  if (place == _subviews.end()) return;
  std::rotate(_subviews.begin(), place, place + 1);
  of(view.get()).setNeedsDisplay();
}

void UIView::removeFromSuperview() {
  if (!_superview) return;
  const bridge::UIView me(self().get());
  const auto kept = bridge::Owned<bridge::UIView>::retain(me);
  const bool wasInWindow = static_cast<bool>(window());
  bridge::send<void, "willMoveToSuperview:">(me, bridge::UIView());
  of(_superview.get()).detach(me);
  bridge::send<void, "didMoveToSuperview">(me);
  if (wasInWindow) tellMovedToWindow();
}

void UIView::detach(bridge::UIView subview) {
  of(subview.get()).setNeedsDisplay();
  of(subview.get())._superview = {};
  std::erase_if(_subviews, [&](const auto& view) { return view.get() == subview; });
  setNeedsLayout();
}

// What leaves the window is no longer shown: its animations and gestures end there.
void UIView::tellMovedToWindow() {
  const bridge::UIView me(self().get());
  if (!window()) {
    animator().stop(me);
    const auto recognizers = _gestureRecognizers;
    for (const auto& recognizer : recognizers)
      bridge::send<void, "_leaveTouches">(recognizer.get());
  }
  bridge::send<void, "didMoveToWindow">(me);
  const auto children = _subviews;
  for (const auto& child : children) of(child.get()).tellMovedToWindow();
}

bridge::UIView UIView::viewWithTag(NSInteger tag) {
  if (_tag == tag) return bridge::UIView(self().get());
  for (const auto& view : _subviews)
    if (const auto found = of(view.get()).viewWithTag(tag)) return found;
  return {};
}

bridge::UIResponder UIView::nextResponder() const {
  return _controller ? _controller : bridge::UIResponder(_superview.get());
}

bridge::NSArray UIView::gestureRecognizersArray() const {
  return _gestureRecognizers.empty() ? bridge::NSArray() : arrayOf(_gestureRecognizers);
}

void UIView::addGestureRecognizer(bridge::UIGestureRecognizer recognizer) {
  if (!recognizer) return;
  const auto kept = bridge::Owned<bridge::UIGestureRecognizer>::retain(recognizer);
  const auto before = bridge::send<bridge::UIView, "view">(recognizer);
  before.removeGestureRecognizer(recognizer);
  _gestureRecognizers.push_back(kept);
  bridge::send<void, "moveToView:">(recognizer, bridge::UIView(self().get()));
}

void UIView::removeGestureRecognizer(bridge::UIGestureRecognizer recognizer) {
  const auto place = std::ranges::find(_gestureRecognizers, recognizer,
                                       &bridge::Owned<bridge::UIGestureRecognizer>::get);
  if (place == _gestureRecognizers.end()) return;
  bridge::send<void, "moveToView:">(recognizer, bridge::UIView());
  _gestureRecognizers.erase(place);
}

}  // namespace desktop::uikit
