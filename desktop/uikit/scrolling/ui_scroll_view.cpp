// SPDX-License-Identifier: MIT
//
// Where the content is. How fingers move it is in ui_scroll_view_panning.cpp.
#include "desktop/uikit/scrolling/ui_scroll_view.h"

#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/graphics/encodings.h"
#include "desktop/uikit/touch/ui_gesture_recognizer.h"

namespace desktop::uikit {
namespace {

constexpr Seconds scrollTime = 0.3;

// One direction of clamping: from the inset before the content as far as the content reaches
// beyond the room.
CGFloat clampedTo(CGFloat offset, CGFloat before, CGFloat content, CGFloat after, CGFloat room) {
  return std::clamp(offset, -before, std::max(-before, content + after - room));
}

}  // namespace

Class UIScrollView::classObject() {
  using Self = UIScrollView;
  static const Class made =
      bridge::ClassBuilder<Self>("UIScrollView")
          .method<"contentOffset", &Self::contentOffset>()
          .method<"setContentOffset:", &Self::setContentOffset>()
          .method<"setContentOffset:animated:", &Self::setContentOffsetAnimated>()
          .method<"contentSize", &Self::contentSize>()
          .method<"setContentSize:", &Self::setContentSize>()
          .method<"contentInset", &Self::contentInset>()
          .method<"setContentInset:", &Self::setContentInset>()
          .method<"adjustedContentInset", &Self::adjustedContentInset>()
          .method<"contentInsetAdjustmentBehavior", &Self::adjustmentBehavior>()
          .method<"setContentInsetAdjustmentBehavior:", &Self::setAdjustmentBehavior>()
          .method<"delegate", &Self::delegate>()
          .method<"setDelegate:", &Self::setDelegate>()
          .method<"isScrollEnabled", &Self::isScrollEnabled>()
          .method<"setScrollEnabled:", &Self::setScrollEnabled>()
          .method<"isPagingEnabled", &Self::isPagingEnabled>()
          .method<"setPagingEnabled:", &Self::setPagingEnabled>()
          .method<"bounces", &Self::bounces>()
          .method<"setBounces:", &Self::setBounces>()
          .method<"alwaysBounceVertical", &Self::alwaysBounceVertical>()
          .method<"setAlwaysBounceVertical:", &Self::setAlwaysBounceVertical>()
          .method<"alwaysBounceHorizontal", &Self::alwaysBounceHorizontal>()
          .method<"setAlwaysBounceHorizontal:", &Self::setAlwaysBounceHorizontal>()
          .method<"isDirectionalLockEnabled", &Self::isDirectionalLockEnabled>()
          .method<"setDirectionalLockEnabled:", &Self::setDirectionalLockEnabled>()
          .method<"delaysContentTouches", &Self::delaysContentTouches>()
          .method<"setDelaysContentTouches:", &Self::setDelaysContentTouches>()
          .method<"showsVerticalScrollIndicator", &Self::showsVerticalIndicator>()
          .method<"setShowsVerticalScrollIndicator:", &Self::setShowsVerticalIndicator>()
          .method<"showsHorizontalScrollIndicator", &Self::showsHorizontalIndicator>()
          .method<"setShowsHorizontalScrollIndicator:", &Self::setShowsHorizontalIndicator>()
          .method<"flashScrollIndicators", &Self::showIndicators>()
          .method<"isTracking", &Self::isTracking>()
          .method<"isDragging", &Self::isDragging>()
          .method<"isDecelerating", &Self::isDecelerating>()
          .method<"panGestureRecognizer", &Self::panGestureRecognizer>()
          .method<"handlePan:", &Self::handlePan>()
          .method<"scrollRectToVisible:animated:", &Self::scrollRectToVisible>()
          .method<"hitTest:withEvent:", &Self::hitTest>()
          .method<"_scrollBy:", &Self::scrollBy>()
          .method<"_delaysTouches", &Self::delaysTouches>()
          .method<"drawOverSubviewsOn:", &Self::drawOverSubviews>()
          .build();
  return made;
}

UIScrollView::UIScrollView(id self) : Bound(self) {
  UIView::of(self).layer().setMasksToBounds(true);
  _pan = bridge::Owned<handles::UIPanGestureRecognizer>::adopt(
      bridge::send<handles::UIPanGestureRecognizer, "initWithTarget:action:">(
          bridge::send<id, "alloc">(UIScrollViewPanGestureRecognizer::classObject()), self,
          bridge::selector<"handlePan:">()));
  me().addGestureRecognizer(_pan);
}

CGPoint UIScrollView::contentOffset() const {
  return UIView::of(self()).bounds().origin;
}

void UIScrollView::setContentOffset(CGPoint offset) {
  if (!std::isfinite(offset.x) || !std::isfinite(offset.y)) return;
  if (!_isMovingItself) stopMotion();
  UIView& view = UIView::of(self());
  const CGRect before = view.bounds();
  view.setBounds({offset, before.size});
  if (view.bounds() == before) return;
  view.setNeedsLayout();
  if (bridge::respondsTo<"scrollViewDidScroll:">(_delegate))
    bridge::send<void, "scrollViewDidScroll:">(_delegate, self());
}

void UIScrollView::setContentOffsetAnimated(CGPoint offset, bool animated) {
  const CGPoint from = contentOffset();
  const bool isGoing = animated && UIView::of(self()).window() && std::isfinite(offset.x) &&
                       std::isfinite(offset.y) && offset != from;
  if (!isGoing) return bridge::send<void, "setContentOffset:">(self(), offset);
  start({ScrollMotion::easing(from.x, offset.x, scrollTime),
         ScrollMotion::easing(from.y, offset.y, scrollTime), scheduler().now(), false});
}

// Content that became smaller is not left behind.
void UIScrollView::setContentSize(CGSize size) {
  if (!std::isfinite(size.width) || !std::isfinite(size.height)) size = {};
  if (size == _contentSize) return;
  _contentSize = size;
  if (_isDragging || _motion) return;
  const CGPoint inside = clamped(contentOffset());
  if (inside != contentOffset()) bridge::send<void, "setContentOffset:">(self(), inside);
}

void UIScrollView::setContentInset(EdgeInsets insets) {
  _contentInset = insets;
  adjustInset();
}

void UIScrollView::setSafeArea(EdgeInsets area) {
  _safeArea = area;
  adjustInset();
}

void UIScrollView::setAdjustmentBehavior(NSInteger behavior) {
  _adjustmentBehavior = behavior;
  adjustInset();
}

// What stood at its top stays there.
void UIScrollView::adjustInset() {
  constexpr NSInteger never = 2;
  EdgeInsets insets = _contentInset;
  if (_adjustmentBehavior != never) {
    insets.top += _safeArea.top;
    insets.left += _safeArea.left;
    insets.bottom += _safeArea.bottom;
    insets.right += _safeArea.right;
  }
  if (insets == _adjustedInset) return;
  const CGPoint before = contentOffset();
  const bool wasAtTop = before.y == -_adjustedInset.top;
  _adjustedInset = insets;
  if (wasAtTop) bridge::send<void, "setContentOffset:">(self(), CGPoint{before.x, -insets.top});
}

CGPoint UIScrollView::clamped(CGPoint offset) const {
  return {clampedTo(offset.x, _adjustedInset.left, _contentSize.width, _adjustedInset.right,
                    room().width),
          clampedTo(offset.y, _adjustedInset.top, _contentSize.height, _adjustedInset.bottom,
                    room().height)};
}

void UIScrollView::setScrollEnabled(bool enabled) {
  if (enabled == _isScrollEnabled) return;
  _isScrollEnabled = enabled;
  if (!enabled && _isDragging) UIGestureRecognizer::of(_pan.get()).leaveTouches();
}

bool UIScrollView::scrollBy(CGPoint distance) {
  const CGPoint before = contentOffset();
  const CGPoint after = clamped(before + distance);
  if (!_isScrollEnabled || _isDragging || after == before) return false;
  bridge::send<void, "setContentOffset:">(self(), after);
  showIndicators();
  return true;
}

void UIScrollView::scrollRectToVisible(CGRect rect, bool animated) {
  const CGRect seen = UIView::of(self()).bounds();
  CGPoint offset = seen.origin;
  offset.x = std::max(std::min(offset.x, rect.origin.x), right(rect) - seen.size.width);
  offset.y = std::max(std::min(offset.y, rect.origin.y), bottom(rect) - seen.size.height);
  setContentOffsetAnimated(clamped(offset), animated);
}

// A finger on content that is moving stops it, and does nothing else.
bridge::UIView UIScrollView::hitTest(CGPoint point, bridge::UIEvent event) {
  const auto hit = super<bridge::UIView, "hitTest:withEvent:">(point, event);
  return hit && isDecelerating() ? me() : hit;
}

}  // namespace desktop::uikit
