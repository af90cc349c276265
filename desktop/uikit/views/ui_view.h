// SPDX-License-Identifier: MIT
//
// UIView: a rectangle in a tree of views. All lengths are in points; a frame is in the superview's
// coordinates, bounds are in the view's own.
#pragma once

#include <vector>
#include "desktop/uikit/views/ui_responder.h"

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_view.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/views/animator.h"

namespace desktop::uikit {

class Canvas;

class UIViewState : public Bound<UIViewState, UIResponderState, UIView> {
 public:
  explicit UIViewState(id self);
  ~UIViewState();
  static Class classObject();

  // Geometry. A frame that is not finite counts as zero; one of a transformed view is the
  // rectangle around it.
  CGRect frame() const;
  void setFrame(CGRect frame);
  CGRect bounds() const { return _own.bounds; }
  void setBounds(CGRect bounds);
  CGPoint center() const { return _own.center; }
  void setCenter(CGPoint center);
  CGAffineTransform transform() const { return _own.transform; }
  void setTransform(CGAffineTransform transform);
  // What is on screen at this moment, which differs from the above while animations run.
  ViewAppearance shown() const;
  // From the view's coordinates to the superview's, as shown now.
  CGAffineTransform toSuperview() const;
  // From the view's coordinates to the screen's, as shown now.
  CGAffineTransform toScreen() const;

  // Look.
  CGFloat alpha() const { return _own.alpha; }
  void setAlpha(CGFloat alpha);
  bool isHidden() const { return _isHidden; }
  void setHidden(bool hidden);
  Color backgroundColor() const { return _own.background; }
  void setBackgroundColor(UIColor color);
  // Its own, or the nearest superview's that has one, or the standard one.
  Color tint() const;
  bool clipsToBounds() const;
  CALayer layer() const { return _layer; }
  NSInteger tag() const { return _tag; }
  NSUInteger autoresizingMask() const { return _autoresizingMask; }

  // Tree. Subviews are from back to front; superview and window are borrowed, nil where none.
  const std::vector<Owned<UIView>>& subviews() const { return _subviews; }
  UIView superview() const { return _superview; }
  UIView window() const;
  // Says that this view is a window: the top of what is on screen.
  void standAsWindow() { _isWindow = true; }
  bool isDescendantOf(UIView view) const;
  void insertSubview(UIView view, std::size_t index);
  // The controller whose view this is, or nil; set by the controller, borrowed.
  UIResponder controller() const { return _controller; }
  void setController(UIResponder controller) { _controller = controller; }

  const std::vector<Owned<UIGestureRecognizer>>& gestureRecognizers() const {
    return _gestureRecognizers;
  }
  bool isUserInteractionEnabled() const { return _isUserInteractionEnabled; }

  // Asks for another layout pass or for painting again before the next frame.
  void setNeedsLayout() { _needsLayout = true; }
  void setNeedsDisplay() const;

  // Paints the view's own content inside its bounds, between background and subviews; the message
  // "drawContentOn:" gets here, so that classes below can answer it with their own.
  void drawContent(Canvas* canvas) const;
  // The same over the subviews, by "drawOverSubviewsOn:".
  void drawOverSubviews(Canvas*) const {}

 private:
  UIView initWithFrame(CGRect frame);
  UIView init();
  UIColor backgroundColorObject() const;
  UIColor tintColor() const;
  void setTintColor(UIColor color);
  void setClipsToBounds(bool clips);
  void setTag(NSInteger tag) { _tag = tag; }
  void setAutoresizingMask(NSUInteger mask) { _autoresizingMask = mask; }
  bool translatesMask() const { return _translatesMask; }
  void setTranslatesMask(bool translates) { _translatesMask = translates; }
  void setUserInteractionEnabled(bool enabled) { _isUserInteractionEnabled = enabled; }
  NSInteger contentMode() const { return _contentMode; }
  void setContentMode(NSInteger mode);
  bool isOpaque() const { return _isOpaque; }
  void setOpaque(bool opaque) { _isOpaque = opaque; }

  NSArray subviewsArray() const;
  void addSubview(UIView view);
  void insertSubviewAtIndex(UIView view, NSInteger index);
  void insertAbove(UIView view, UIView sibling);
  void insertBelow(UIView view, UIView sibling);
  void bringToFront(UIView view);
  void sendToBack(UIView view);
  void removeFromSuperview();
  void willMoveToSuperview(UIView) {}
  void didMoveToSuperview() {}
  void didMoveToWindow() {}
  UIView viewWithTag(NSInteger tag);
  UIResponder nextResponder() const;

  void layoutSubviews() {}
  void layoutIfNeeded();
  CGSize sizeThatFits(CGSize size) const;
  void sizeToFit();
  void resizeSubviews(CGSize oldSize);

  UIView hitTest(CGPoint point, UIEvent event);
  bool pointInside(CGPoint point, UIEvent event) const;
  CGPoint convertPointTo(CGPoint point, UIView view) const;
  CGPoint convertPointFrom(CGPoint point, UIView view) const;
  CGRect convertRectTo(CGRect rect, UIView view) const;
  CGRect convertRectFrom(CGRect rect, UIView view) const;

  // What scrolls answers these otherwise: a wheel over it, and whether a touch in it may be one
  // that scrolls.
  bool scrollBy(CGPoint) { return false; }
  bool delaysTouches() const { return false; }

  NSArray gestureRecognizersArray() const;
  void addGestureRecognizer(UIGestureRecognizer recognizer);
  void removeGestureRecognizer(UIGestureRecognizer recognizer);

  // Moves to another appearance: animated where an animation is being described.
  void become(const ViewAppearance& appearance);
  void detach(UIView subview);
  void tellMovedToWindow();
  bool layOut();

  ViewAppearance _own;
  Owned<UIColor> _tintColor;  // nil: inherited
  Owned<CALayer> _layer;
  std::vector<Owned<UIView>> _subviews;
  UIView _superview;        // borrowed
  UIResponder _controller;  // borrowed
  std::vector<Owned<UIGestureRecognizer>> _gestureRecognizers;
  NSInteger _tag = 0;
  NSUInteger _autoresizingMask = 0;
  NSInteger _contentMode = 0;
  bool _isWindow = false;
  bool _isHidden = false;
  bool _isOpaque = true;
  bool _translatesMask = true;
  bool _isUserInteractionEnabled = true;
  bool _needsLayout = true;
};

// The methods of animation, of the class.
void addViewAnimations();

}  // namespace desktop::uikit
