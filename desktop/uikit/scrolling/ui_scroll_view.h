// SPDX-License-Identifier: MIT
//
// UIScrollView: a window onto content that may be larger than it. The content offset is the origin
// of the bounds.
#pragma once

#include <optional>

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/pending_call.h"
#include "desktop/uikit/scrolling/scroll_content.h"
#include "desktop/uikit/scrolling/scroll_drag.h"
#include "desktop/uikit/scrolling/scroll_indicators.h"
#include "desktop/uikit/scrolling/scroll_travel.h"
#include "desktop/uikit/scrolling/ui_scroll_view_pan_gesture_recognizer.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

class UIScrollViewState : public Bound<UIScrollViewState, UIViewState, UIScrollView> {
 public:
  explicit UIScrollViewState(id self);
  ~UIScrollViewState();
  static Class classObject();

  CGPoint contentOffset() const;
  // Tells the delegate scrollViewDidScroll:. Any finite offset is taken; what moves by itself
  // stops.
  void setContentOffset(CGPoint offset);
  // The offset on its way to there, or there at once.
  void setContentOffsetAnimated(CGPoint offset, bool animated);
  CGSize contentSize() const { return _content.size; }
  void setContentSize(CGSize size);
  EdgeInsets contentInset() const { return _content.inset; }
  void setContentInset(EdgeInsets insets);
  // Room that bars take at the edges, which the content keeps out of unless its adjustment is
  // never; set by the controller around the view.
  void setSafeArea(EdgeInsets area);
  // The content inset and the safe area together: what counts.
  EdgeInsets adjustedContentInset() const { return _content.adjustedInset(); }
  // The offset nearest to this one that shows no room outside content and insets.
  CGPoint clamped(CGPoint offset) const { return _content.clamped(offset, room()); }
  // Scrolls by a distance as far as there is content: what a wheel does. Whether it moved.
  bool scrollBy(CGPoint distance);

  NSObject delegate() const { return _delegate; }
  bool isScrollEnabled() const { return _isScrollEnabled; }
  bool isPagingEnabled() const { return _isPagingEnabled; }
  // With a finger on it, scrolled by one, and moving on by itself after one.
  bool isTracking() const { return _isTracking; }
  bool isDragging() const { return _drag.isUnderWay(); }
  bool isDecelerating() const { return _travel && _travel->isCoasting; }
  // Whether touches on the content wait until it is clear that they do not scroll.
  bool delaysTouches() const;

  // Paints the bars at the edges that say where one is, over everything else in the view.
  void drawIndicators(Canvas& canvas) const;
  void drawOverSubviews(Canvas* canvas) const { drawIndicators(*canvas); }

 private:
  // What is bound of what is set, and asked.
  NSInteger adjustmentBehavior() const { return _content.adjustment; }
  void setAdjustmentBehavior(NSInteger behavior);
  void setDelegate(NSObject delegate) { _delegate = delegate; }
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
  bool showsVerticalIndicator() const { return _indicators.showsVertical(); }
  void setShowsVerticalIndicator(bool shows);
  bool showsHorizontalIndicator() const { return _indicators.showsHorizontal(); }
  void setShowsHorizontalIndicator(bool shows);
  UIPanGestureRecognizer panGestureRecognizer() const { return _pan; }
  void handlePan(UIPanGestureRecognizer recognizer);
  void scrollRectToVisible(CGRect rect, bool animated);
  UIView hitTest(CGPoint point, UIEvent event);

  // How the parts work together.
  CGSize room() const { return bounds().size; }
  UIScrollViewPanGestureRecognizer::Ways freeWays() const;
  UIScrollViewPanGestureRecognizer::Ways fingerDown();
  void fingerGone();
  void beginDragging();
  void drag();
  void endDragging(bool isCancelled);
  CGPoint followed(CGPoint way) const;
  ScrollTravel travelWith(CGPoint velocity) const;
  CGPoint wantedEnd(CGPoint velocity, CGPoint end) const;
  void start(ScrollTravel travel);
  void tick();
  void finish();
  void stop();
  void moveTo(CGPoint offset);
  void followInset(const EdgeInsets& before);
  ScrollIndicators::Bars bars() const;
  void showIndicators();
  void fadeIndicators();
  double indicatorAlpha() const;

  NSObject _delegate;  // borrowed
  Owned<UIPanGestureRecognizer> _pan;
  bool _isScrollEnabled = true;
  bool _isPagingEnabled = false;
  bool _bounces = true;
  bool _alwaysBounceVertical = false;
  bool _alwaysBounceHorizontal = false;
  bool _isDirectionalLockEnabled = false;
  bool _delaysContentTouches = true;

  ScrollContent _content;
  bool _isTracking = false;
  ScrollDrag _drag;
  std::optional<ScrollTravel> _travel;
  PendingCall _tick;
  bool _isMovingItself = false;  // by drag or travel, not by a command
  ScrollIndicators _indicators;
  PendingCall _fade;
};

}  // namespace desktop::uikit
