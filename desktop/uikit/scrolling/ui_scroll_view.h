// SPDX-License-Identifier: MIT
//
// UIScrollView: a window onto content that may be larger than it. The content offset is the origin
// of the bounds.
#pragma once

#include <algorithm>
#include <optional>

#include "bridge/bound.h"
#include "desktop/uikit/base/pending_call.h"
#include "desktop/uikit/handles.h"
#include "desktop/uikit/scrolling/scroll_motion.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

// Distances from the edges inwards, in points.
struct EdgeInsets {
  CGFloat top = 0;
  CGFloat left = 0;
  CGFloat bottom = 0;
  CGFloat right = 0;
  bool operator==(const EdgeInsets&) const = default;
};

class UIScrollView : public bridge::Bound<UIScrollView, bridge::UIView> {
 public:
  explicit UIScrollView(id self);
  static Class classObject();

  CGPoint contentOffset() const;
  // Tells the delegate scrollViewDidScroll:. Any finite offset is taken; what moves by itself
  // stops.
  void setContentOffset(CGPoint offset);
  // The offset on its way to there, or there at once.
  void setContentOffsetAnimated(CGPoint offset, bool animated);
  CGSize contentSize() const { return _contentSize; }
  void setContentSize(CGSize size);
  EdgeInsets contentInset() const { return _contentInset; }
  void setContentInset(EdgeInsets insets);
  // Room that bars take at the edges, which the content keeps out of unless the adjustment
  // behaviour is never (2); set by the controller around the view.
  void setSafeArea(EdgeInsets area);
  // The content inset and the safe area together: what counts.
  EdgeInsets adjustedContentInset() const { return _adjustedInset; }
  // The offset nearest to this one that shows no room outside content and insets.
  CGPoint clamped(CGPoint offset) const;
  // Scrolls by a distance as far as there is content: what a wheel does. Whether it moved.
  bool scrollBy(CGPoint distance);

  bridge::NSObject delegate() const { return _delegate; }
  bool isScrollEnabled() const { return _isScrollEnabled; }
  bool isPagingEnabled() const { return _isPagingEnabled; }
  // With a finger on it, scrolled by one, and moving on by itself after one.
  bool isTracking() const { return _isTracking; }
  bool isDragging() const { return _isDragging; }
  bool isDecelerating() const { return _motion && _motion->isCoasting; }
  // Whether touches on the content wait until it is clear that they do not scroll.
  bool delaysTouches() const;

  // For the recogniser of the view's own panning: which ways the content can be dragged, and the
  // finger on the view, whatever becomes of it.
  bool canDragAcross() const;
  bool canDragDown() const;
  void fingerDown();
  void fingerGone();

  // Paints the bars at the edges that say where one is, over everything else in the view.
  void drawIndicators(Canvas& canvas) const;
  void drawOverSubviews(Canvas* canvas) const { drawIndicators(*canvas); }

 private:
  struct Motion {
    ScrollMotion x;
    ScrollMotion y;
    Seconds start = 0;
    bool isCoasting = false;  // after a finger, not by a command
    Seconds duration() const { return std::max(x.duration(), y.duration()); }
    CGPoint at(Seconds time) const { return {x.at(time), y.at(time)}; }
  };
  bridge::UIView me() const { return bridge::UIView(self().get()); }
  NSInteger adjustmentBehavior() const { return _adjustmentBehavior; }
  void setAdjustmentBehavior(NSInteger behavior);
  void adjustInset();
  void setDelegate(bridge::NSObject delegate) { _delegate = delegate; }
  void setScrollEnabled(bool enabled);
  void setPagingEnabled(bool enabled) { _isPagingEnabled = enabled; }
  bool bounces() const { return _bounces; }
  void setBounces(bool bounces) { _bounces = bounces; }
  bool alwaysBounceVertical() const { return _alwaysBounceVertical; }
  void setAlwaysBounceVertical(bool always) { _alwaysBounceVertical = always; }
  bool alwaysBounceHorizontal() const { return _alwaysBounceHorizontal; }
  void setAlwaysBounceHorizontal(bool always) { _alwaysBounceHorizontal = always; }
  bool isDirectionalLockEnabled() const { return _isDirectionalLockEnabled; }
  void setDirectionalLockEnabled(bool enabled) { _isDirectionalLockEnabled = enabled; }
  bool delaysContentTouches() const { return _delaysContentTouches; }
  void setDelaysContentTouches(bool delays) { _delaysContentTouches = delays; }
  bool showsVerticalIndicator() const { return _showsVerticalIndicator; }
  void setShowsVerticalIndicator(bool shows);
  bool showsHorizontalIndicator() const { return _showsHorizontalIndicator; }
  void setShowsHorizontalIndicator(bool shows);
  handles::UIPanGestureRecognizer panGestureRecognizer() const { return _pan; }
  void scrollRectToVisible(CGRect rect, bool animated);
  bridge::UIView hitTest(CGPoint point, bridge::UIEvent event);

  // Panning, in ui_scroll_view_panning.cpp.
  CGSize room() const { return UIView::of(self()).bounds().size; }
  void handlePan(handles::UIPanGestureRecognizer recognizer);
  void beginDragging();
  void drag();
  void endDragging(bool isCancelled);
  CGPoint stretched(CGPoint offset) const;
  CGPoint freeWays(CGPoint way) const;
  CGPoint pageNear(CGPoint offset, CGPoint velocity) const;
  Motion motionFrom(CGPoint velocity) const;
  CGPoint wantedEnd(CGPoint velocity, CGPoint end) const;
  void start(Motion motion);
  void tick();
  void finishMotion();
  void stopMotion();
  void settle();
  void moveTo(CGPoint offset);

  // Indicators, in ui_scroll_view_indicators.cpp.
  void showIndicators();
  void fadeIndicators();
  double indicatorAlpha() const;
  CGRect verticalIndicator() const;
  CGRect horizontalIndicator() const;

  CGSize _contentSize;
  EdgeInsets _contentInset;
  EdgeInsets _safeArea;
  EdgeInsets _adjustedInset;
  NSInteger _adjustmentBehavior = 0;  // automatic
  bridge::NSObject _delegate;         // borrowed
  bridge::Owned<handles::UIPanGestureRecognizer> _pan;
  CGPoint _dragStart;  // the content offset there
  std::optional<Motion> _motion;
  PendingCall _tick;
  PendingCall _fade;
  Seconds _lastScrolled = -1'000;
  bool _isScrollEnabled = true;
  bool _isPagingEnabled = false;
  bool _bounces = true;
  bool _alwaysBounceVertical = false;
  bool _alwaysBounceHorizontal = false;
  bool _isDirectionalLockEnabled = false;
  bool _delaysContentTouches = true;
  bool _showsVerticalIndicator = true;
  bool _showsHorizontalIndicator = true;
  bool _isTracking = false;
  bool _isDragging = false;
  bool _isMovingItself = false;
  bool _locksAcross = false;  // this drag goes down only
  bool _locksDown = false;
};

// The recogniser of a scroll view's panning: moves along the ways that can be scrolled count.
class UIScrollViewPanGestureRecognizer
    : public bridge::Bound<UIScrollViewPanGestureRecognizer, handles::UIPanGestureRecognizer> {
 public:
  using Bound::Bound;
  static Class classObject();

 private:
  void touchesBegan(bridge::NSSet touches, bridge::UIEvent event);
  void reset();
  bridge::UIView scrollView() const;
};

}  // namespace desktop::uikit

template <>
struct bridge::Encoding<desktop::uikit::EdgeInsets> {
  static constexpr FixedString text = "{UIEdgeInsets=dddd}";
};
