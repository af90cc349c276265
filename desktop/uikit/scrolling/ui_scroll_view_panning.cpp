// SPDX-License-Identifier: MIT
//
// How a finger moves the content, and how the content goes on after it.
#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/scrolling/ui_scroll_view.h"
#include "desktop/uikit/touch/ui_pan_gesture_recognizer.h"

namespace desktop::uikit {
namespace {

using State = bridge::UIGestureRecognizer::State;

constexpr Seconds frame = 1.0 / 60;
constexpr CGFloat pagingVelocity = 200;  // points a second, from where on a page is turned

// One direction of a finger that pulls beyond the limits.
CGFloat pulled(CGFloat offset, CGFloat inside, CGFloat room, bool bounces) {
  return bounces ? inside + rubberBand(offset - inside, room) : inside;
}

// The page next to where the drag began that the content goes to.
CGFloat pageAt(CGFloat offset, CGFloat begin, CGFloat velocity, CGFloat page) {
  if (!(page > 0)) return offset;
  const CGFloat first = std::round(begin / page);
  CGFloat wanted = std::round(offset / page);
  if (std::abs(velocity) > pagingVelocity) wanted = first + (velocity > 0 ? 1 : -1);
  return std::clamp(wanted, first - 1, first + 1) * page;
}

CGPoint onPixels(CGPoint point) {
  const CGFloat scale = screen().scale;
  return {std::round(point.x * scale) / scale, std::round(point.y * scale) / scale};
}

}  // namespace

bool UIScrollView::canDragAcross() const {
  const bool isWider =
      _contentSize.width + _adjustedInset.left + _adjustedInset.right > room().width;
  return _isScrollEnabled && (isWider || (_bounces && _alwaysBounceHorizontal));
}

bool UIScrollView::canDragDown() const {
  const bool isHigher =
      _contentSize.height + _adjustedInset.top + _adjustedInset.bottom > room().height;
  return _isScrollEnabled && (isHigher || (_bounces && _alwaysBounceVertical));
}

bool UIScrollView::delaysTouches() const {
  return _delaysContentTouches && (canDragAcross() || canDragDown());
}

void UIScrollView::fingerDown() {
  _isTracking = true;
  if (!isDecelerating()) return;
  stopMotion();
  if (bridge::respondsTo<"scrollViewDidEndDecelerating:">(_delegate))
    bridge::send<void, "scrollViewDidEndDecelerating:">(_delegate, me());
}

// What a finger stopped between two pages, or beyond the end, goes on without it.
void UIScrollView::fingerGone() {
  if (!std::exchange(_isTracking, false) || _isDragging || _motion) return;
  _dragStart = contentOffset();
  Motion motion = motionFrom({});
  if (motion.duration() > 0) start(motion);
}

void UIScrollView::handlePan(handles::UIPanGestureRecognizer recognizer) {
  switch (recognizer.state()) {
    case State::began:
      beginDragging();
      return drag();
    case State::changed:
      return drag();
    case State::ended:
      return endDragging(false);
    default:
      return endDragging(true);
  }
}

void UIScrollView::beginDragging() {
  stopMotion();
  _isDragging = true;
  _dragStart = contentOffset();
  const CGPoint way = UIPanGestureRecognizer::of(_pan.get()).translationIn({});
  const CGPoint speed = UIPanGestureRecognizer::of(_pan.get()).velocityIn({});
  const bool goesDown = std::abs(way.y) + std::abs(speed.y) >= std::abs(way.x) + std::abs(speed.x);
  _locksAcross = _isDirectionalLockEnabled && goesDown;
  _locksDown = _isDirectionalLockEnabled && !goesDown;
  if (bridge::respondsTo<"scrollViewWillBeginDragging:">(_delegate))
    bridge::send<void, "scrollViewWillBeginDragging:">(_delegate, me());
}

// Of a way, or a velocity, what the content can follow.
CGPoint UIScrollView::freeWays(CGPoint way) const {
  return {canDragAcross() && !_locksAcross ? way.x : 0, canDragDown() && !_locksDown ? way.y : 0};
}

CGPoint UIScrollView::stretched(CGPoint offset) const {
  const CGPoint inside = clamped(offset);
  return {pulled(offset.x, inside.x, room().width, _bounces),
          pulled(offset.y, inside.y, room().height, _bounces)};
}

void UIScrollView::drag() {
  if (!_isDragging) return;
  const CGPoint way = freeWays(UIPanGestureRecognizer::of(_pan.get()).translationIn(me()));
  moveTo(stretched(_dragStart - way));
}

CGPoint UIScrollView::pageNear(CGPoint offset, CGPoint velocity) const {
  return clamped({pageAt(offset.x, _dragStart.x, velocity.x, room().width),
                  pageAt(offset.y, _dragStart.y, velocity.y, room().height)});
}

UIScrollView::Motion UIScrollView::motionFrom(CGPoint velocity) const {
  const CGPoint from = contentOffset();
  if (_isPagingEnabled) {
    const CGPoint to = pageNear(from, velocity);
    return {ScrollMotion::springing(from.x, to.x == from.x ? 0 : velocity.x, to.x),
            ScrollMotion::springing(from.y, to.y == from.y ? 0 : velocity.y, to.y), 0, true};
  }
  const CGPoint least = clamped({-HUGE_VAL, -HUGE_VAL});
  const CGPoint most = clamped({HUGE_VAL, HUGE_VAL});
  return {ScrollMotion::coasting(from.x, velocity.x, {least.x, most.x}, _bounces),
          ScrollMotion::coasting(from.y, velocity.y, {least.y, most.y}, _bounces), 0, true};
}

// Where the delegate wants the content to come to rest that would do so at an end; velocities are
// told in points a millisecond.
CGPoint UIScrollView::wantedEnd(CGPoint velocity, CGPoint end) const {
  constexpr bridge::FixedString question =
      "scrollViewWillEndDragging:withVelocity:targetContentOffset:";
  if (bridge::respondsTo<question>(_delegate))
    bridge::send<void, question>(_delegate, me(), CGPoint{velocity.x / 1000, velocity.y / 1000},
                                 &end);
  return std::isfinite(end.x) && std::isfinite(end.y) ? end : contentOffset();
}

void UIScrollView::endDragging(bool isCancelled) {
  if (!std::exchange(_isDragging, false)) return;
  CGPoint velocity;
  if (!isCancelled) {
    const CGPoint finger = freeWays(UIPanGestureRecognizer::of(_pan.get()).velocityIn(me()));
    velocity = {-finger.x, -finger.y};
  }
  Motion motion = motionFrom(velocity);
  const CGPoint end{motion.x.end(), motion.y.end()};
  const CGPoint wanted = wantedEnd(velocity, end);
  const CGPoint from = contentOffset();
  if (wanted != end)
    motion = {ScrollMotion::springing(from.x, velocity.x, wanted.x),
              ScrollMotion::springing(from.y, velocity.y, wanted.y), 0, true};
  const bool goesOn = motion.duration() > 0 && UIView::of(self()).window();
  if (goesOn) start(motion);
  if (bridge::respondsTo<"scrollViewDidEndDragging:willDecelerate:">(_delegate))
    bridge::send<void, "scrollViewDidEndDragging:willDecelerate:">(_delegate, me(), goesOn);
  if (goesOn && isDecelerating() &&
      bridge::respondsTo<"scrollViewWillBeginDecelerating:">(_delegate))
    bridge::send<void, "scrollViewWillBeginDecelerating:">(_delegate, me());
  if (!goesOn) moveTo(clamped(contentOffset()));
}

void UIScrollView::start(Motion motion) {
  motion.start = scheduler().now();
  _motion = motion;
  _tick.callAfter(frame, [this] { tick(); });
}

// Content that nobody sees any longer stays where it is.
void UIScrollView::tick() {
  if (!_motion) return;
  const auto kept = bridge::Owned<bridge::UIView>::retain(me());
  if (!UIView::of(self()).window()) return stopMotion();
  const Seconds time = scheduler().now() - _motion->start;
  if (time >= _motion->duration()) return finishMotion();
  _tick.callAfter(frame, [this] { tick(); });
  moveTo(_motion->at(time));
}

// The content may have become another while it moved.
void UIScrollView::finishMotion() {
  const Motion motion = *_motion;
  const CGPoint end = motion.at(motion.duration());
  stopMotion();
  moveTo(motion.isCoasting ? clamped(onPixels(end)) : end);
  if (motion.isCoasting) {
    if (bridge::respondsTo<"scrollViewDidEndDecelerating:">(_delegate))
      bridge::send<void, "scrollViewDidEndDecelerating:">(_delegate, me());
  } else if (bridge::respondsTo<"scrollViewDidEndScrollingAnimation:">(_delegate)) {
    bridge::send<void, "scrollViewDidEndScrollingAnimation:">(_delegate, me());
  }
}

void UIScrollView::stopMotion() {
  _motion.reset();
  _tick.cancel();
}

void UIScrollView::moveTo(CGPoint offset) {
  const bool wasMovingItself = std::exchange(_isMovingItself, true);
  bridge::send<void, "setContentOffset:">(self(), offset);
  _isMovingItself = wasMovingItself;
  showIndicators();
}

Class UIScrollViewPanGestureRecognizer::classObject() {
  using Self = UIScrollViewPanGestureRecognizer;
  static const Class made = bridge::ClassBuilder<Self>("UIScrollViewPanGestureRecognizer")
                                .method<"touchesBegan:withEvent:", &Self::touchesBegan>()
                                .method<"reset", &Self::reset>()
                                .build();
  return made;
}

bridge::UIView UIScrollViewPanGestureRecognizer::scrollView() const {
  return UIGestureRecognizer::of(self()).view();
}

void UIScrollViewPanGestureRecognizer::touchesBegan(bridge::NSSet touches, bridge::UIEvent event) {
  if (const bridge::UIView view = scrollView()) {
    UIScrollView& scrolled = UIScrollView::of(view);
    UIPanGestureRecognizer::of(self()).setWays(scrolled.canDragAcross(), scrolled.canDragDown());
    scrolled.fingerDown();
  }
  super<void, "touchesBegan:withEvent:">(touches, event);
}

void UIScrollViewPanGestureRecognizer::reset() {
  super<void, "reset">();
  if (const bridge::UIView view = scrollView()) UIScrollView::of(view).fingerGone();
}

}  // namespace desktop::uikit
