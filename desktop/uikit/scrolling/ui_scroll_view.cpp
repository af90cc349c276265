// SPDX-License-Identifier: MIT
//
// Content moves in three ways: it is set to an offset, a finger drags it, or it travels by itself,
// after the finger or to where it was told to go. All three end in setContentOffset:, which tells
// the delegate; what is set by others stops what moves by itself. A drag ends in a travel, which a
// tick moves on in steps of a frame until it is there or a finger comes.
#include "desktop/uikit/scrolling/ui_scroll_view.h"

#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/optional_message.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/graphics/encodings.h"
#include "desktop/uikit/scrolling/scroll_target.h"
#include "desktop/uikit/touch/ui_gesture_recognizer.h"
#include "desktop/uikit/touch/ui_pan_gesture_recognizer.h"

namespace desktop::uikit {
namespace {

using State = UIGestureRecognizer::State;

constexpr Seconds frame = 1.0 / 60;
constexpr Seconds scrollTime = 0.3;

bool isFinite(CGPoint point) {
  return std::isfinite(point.x) && std::isfinite(point.y);
}

CGPoint onPixels(CGPoint point) {
  const CGFloat scale = screen().scale;
  return {std::round(point.x * scale) / scale, std::round(point.y * scale) / scale};
}

}  // namespace

Class UIScrollViewState::classObject() {
  using Self = UIScrollViewState;
  static const Class made =
      ClassBuilder<Self>("UIScrollView")
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

UIScrollViewState::UIScrollViewState(id object) : Bound(object) {
  layer().setMasksToBounds(true);
  _pan = makeWith<UIPanGestureRecognizer, "initWithTarget:action:">(
      UIScrollViewPanGestureRecognizer::classObject(), self(), selector<"handlePan:">());
  UIScrollViewPanGestureRecognizer::of(_pan.get())
      .setFingers({[this] { return fingerDown(); }, [this] { fingerGone(); }});
  self().addGestureRecognizer(_pan);
}

UIScrollViewState::~UIScrollViewState() {
  UIScrollViewPanGestureRecognizer::of(_pan.get()).setFingers({});
}

CGPoint UIScrollViewState::contentOffset() const {
  return bounds().origin;
}

void UIScrollViewState::setContentOffset(CGPoint offset) {
  if (!std::isfinite(offset.x) || !std::isfinite(offset.y)) return;
  if (!_isMovingItself) stop();
  const CGRect before = bounds();
  setBounds({offset, before.size});
  if (bounds() == before) return;
  setNeedsLayout();
  told<"scrollViewDidScroll:">(_delegate, self());
}

void UIScrollViewState::setContentOffsetAnimated(CGPoint offset, bool animated) {
  const CGPoint from = contentOffset();
  const bool isGoing = animated && window() && isFinite(offset) && offset != from;
  if (!isGoing) return self().setContentOffset(offset);
  start(ScrollTravel::easing(from, offset, scrollTime));
}

// Content that became smaller is not left behind.
void UIScrollViewState::setContentSize(CGSize size) {
  if (!std::isfinite(size.width) || !std::isfinite(size.height)) size = {};
  if (size == _content.size) return;
  _content.size = size;
  if (isDragging() || _travel) return;
  const CGPoint inside = clamped(contentOffset());
  if (inside != contentOffset()) self().setContentOffset(inside);
}

void UIScrollViewState::setContentInset(EdgeInsets insets) {
  const EdgeInsets before = adjustedContentInset();
  _content.inset = insets;
  followInset(before);
}

void UIScrollViewState::setSafeArea(EdgeInsets area) {
  const EdgeInsets before = adjustedContentInset();
  _content.safeArea = area;
  followInset(before);
}

void UIScrollViewState::setAdjustmentBehavior(NSInteger behavior) {
  const EdgeInsets before = adjustedContentInset();
  _content.adjustment = behavior;
  followInset(before);
}

// What stood at its top stays there.
void UIScrollViewState::followInset(const EdgeInsets& before) {
  const EdgeInsets after = adjustedContentInset();
  const CGPoint offset = contentOffset();
  if (after != before && offset.y == -before.top)
    self().setContentOffset(CGPoint{offset.x, -after.top});
}

void UIScrollViewState::setScrollEnabled(bool enabled) {
  if (enabled == _isScrollEnabled) return;
  _isScrollEnabled = enabled;
  if (!enabled && isDragging()) UIGestureRecognizerState::of(_pan.get()).leaveTouches();
}

bool UIScrollViewState::scrollBy(CGPoint distance) {
  const CGPoint before = contentOffset();
  const CGPoint after = clamped(before + distance);
  if (!_isScrollEnabled || isDragging() || after == before) return false;
  self().setContentOffset(after);
  showIndicators();
  return true;
}

void UIScrollViewState::scrollRectToVisible(CGRect rect, bool animated) {
  const auto [from, size] = bounds();
  const CGPoint offset = {
      offsetShowing(rect.origin.x, rect.size.width, {from.x, size.width}, ShownAt::nearest),
      offsetShowing(rect.origin.y, rect.size.height, {from.y, size.height}, ShownAt::nearest)};
  setContentOffsetAnimated(clamped(offset), animated);
}

// A finger on content that is moving stops it, and does nothing else.
UIView UIScrollViewState::hitTest(CGPoint point, UIEvent event) {
  const auto hit = super<UIView, "hitTest:withEvent:">(point, event);
  return hit && isDecelerating() ? self() : hit;
}

// A finger on it.

UIScrollViewPanGestureRecognizer::Ways UIScrollViewState::freeWays() const {
  const CGSize content = _content.whole();
  const bool across = content.width > room().width || (_bounces && _alwaysBounceHorizontal);
  const bool down = content.height > room().height || (_bounces && _alwaysBounceVertical);
  return {_isScrollEnabled && across, _isScrollEnabled && down};
}

bool UIScrollViewState::delaysTouches() const {
  const auto ways = freeWays();
  return _delaysContentTouches && (ways.across || ways.down);
}

UIScrollViewPanGestureRecognizer::Ways UIScrollViewState::fingerDown() {
  const auto ways = freeWays();
  _isTracking = true;
  if (isDecelerating()) {
    stop();
    told<"scrollViewDidEndDecelerating:">(_delegate, self());
  }
  return ways;
}

// What a finger stopped between two pages, or beyond the end, goes on without it.
void UIScrollViewState::fingerGone() {
  if (!std::exchange(_isTracking, false) || isDragging() || _travel) return;
  _drag.letGoAt(contentOffset());
  const ScrollTravel travel = travelWith({});
  if (travel.duration() > 0) start(travel);
}

void UIScrollViewState::handlePan(UIPanGestureRecognizer recognizer) {
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

void UIScrollViewState::beginDragging() {
  stop();
  const auto& pan = UIPanGestureRecognizerState::of(_pan.get());
  _drag.begin(contentOffset(), pan.translationIn({}), pan.velocityIn({}),
              _isDirectionalLockEnabled);
  told<"scrollViewWillBeginDragging:">(_delegate, self());
}

// Of a way, or a velocity, what the content can follow.
CGPoint UIScrollViewState::followed(CGPoint way) const {
  const auto ways = freeWays();
  return _drag.along(way, ways.across, ways.down);
}

void UIScrollViewState::drag() {
  if (!isDragging()) return;
  const CGPoint way = followed(UIPanGestureRecognizerState::of(_pan.get()).translationIn(self()));
  moveTo(_content.pulledTo(_drag.start() - way, room(), _bounces));
}

void UIScrollViewState::endDragging(bool isCancelled) {
  if (!_drag.end()) return;
  CGPoint velocity;
  if (!isCancelled)
    velocity = CGPoint{} - followed(UIPanGestureRecognizerState::of(_pan.get()).velocityIn(self()));
  ScrollTravel travel = travelWith(velocity);
  const CGPoint wanted = wantedEnd(velocity, travel.end());
  if (wanted != travel.end()) travel = ScrollTravel::springing(contentOffset(), velocity, wanted);
  const bool goesOn = travel.duration() > 0 && window();
  if (goesOn) start(travel);
  told<"scrollViewDidEndDragging:willDecelerate:">(_delegate, self(), goesOn);
  if (goesOn && isDecelerating()) told<"scrollViewWillBeginDecelerating:">(_delegate, self());
  if (!goesOn) moveTo(clamped(contentOffset()));
}

// Where the delegate wants the content to come to rest that would do so at an end; velocities are
// told in points a millisecond.
CGPoint UIScrollViewState::wantedEnd(CGPoint velocity, CGPoint end) const {
  told<"scrollViewWillEndDragging:withVelocity:targetContentOffset:">(
      _delegate, self(), CGPoint{velocity.x / 1000, velocity.y / 1000}, &end);
  return isFinite(end) ? end : contentOffset();
}

// It moves by itself.

ScrollTravel UIScrollViewState::travelWith(CGPoint velocity) const {
  const CGPoint from = contentOffset();
  if (!_isPagingEnabled)
    return ScrollTravel::coasting(from, velocity, clamped({-HUGE_VAL, -HUGE_VAL}),
                                  clamped({HUGE_VAL, HUGE_VAL}), _bounces);
  const CGPoint to = clamped(_drag.pageNear(from, velocity, room()));
  return ScrollTravel::springing(
      from, {to.x == from.x ? 0 : velocity.x, to.y == from.y ? 0 : velocity.y}, to);
}

void UIScrollViewState::start(ScrollTravel travel) {
  travel.start = scheduler().now();
  _travel = travel;
  _tick.callAfter(uikit::frame, [this] { tick(); });
}

// Content that nobody sees any longer stays where it is.
void UIScrollViewState::tick() {
  if (!_travel) return;
  const auto kept = Owned<UIView>::retain(self());
  if (!window()) return stop();
  const Seconds time = scheduler().now() - _travel->start;
  if (time >= _travel->duration()) return finish();
  _tick.callAfter(uikit::frame, [this] { tick(); });
  moveTo(_travel->at(time));
}

// The content may have become another while it moved.
void UIScrollViewState::finish() {
  const bool wasCoasting = _travel->isCoasting;
  const CGPoint end = _travel->end();
  stop();
  moveTo(wasCoasting ? clamped(onPixels(end)) : end);
  if (wasCoasting) {
    told<"scrollViewDidEndDecelerating:">(_delegate, self());
  } else {
    told<"scrollViewDidEndScrollingAnimation:">(_delegate, self());
  }
}

void UIScrollViewState::stop() {
  _travel.reset();
  _tick.cancel();
}

void UIScrollViewState::moveTo(CGPoint offset) {
  const bool wasMovingItself = std::exchange(_isMovingItself, true);
  self().setContentOffset(offset);
  _isMovingItself = wasMovingItself;
  showIndicators();
}

// The bars at its edges.

void UIScrollViewState::setShowsVerticalIndicator(bool shows) {
  _indicators.setShowsVertical(shows);
  setNeedsDisplay();
}

void UIScrollViewState::setShowsHorizontalIndicator(bool shows) {
  _indicators.setShowsHorizontal(shows);
  setNeedsDisplay();
}

ScrollIndicators::Bars UIScrollViewState::bars() const {
  return _indicators.bars(bounds(), _content);
}

double UIScrollViewState::indicatorAlpha() const {
  return _indicators.alpha(scheduler().now(), isDragging());
}

void UIScrollViewState::drawIndicators(Canvas& canvas) const {
  ScrollIndicators::draw(canvas, bars(), indicatorAlpha());
}

void UIScrollViewState::showIndicators() {
  const auto [vertical, horizontal] = bars();
  if ((isEmpty(vertical) && isEmpty(horizontal)) || !window()) return;
  _indicators.show(scheduler().now());
  fadeIndicators();
  _fade.callAfter(ScrollIndicators::shownFor, [this] { fadeIndicators(); });
}

// Asks for the bars to be painted again, until they are gone.
void UIScrollViewState::fadeIndicators() {
  if (!window()) return;
  for (const CGRect& bar : bars())
    if (!isEmpty(bar)) screen().damage.add(apply(toScreen(), bar));
  if (indicatorAlpha() > 0) _fade.callAfter(uikit::frame, [this] { fadeIndicators(); });
}

}  // namespace desktop::uikit
