// SPDX-License-Identifier: MIT
//
// UIView: a rectangle in a tree of views. All lengths are in points; a frame is in the superview's
// coordinates, bounds are in the view's own.
#pragma once

#include <vector>

#include "bridge/bound.h"
#include "bridge/uikit/ui_view.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/views/animator.h"

namespace desktop::uikit {

class Canvas;

class UIView : public bridge::Bound<UIView, bridge::UIResponder> {
 public:
  explicit UIView(id self);
  ~UIView();
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
  void setBackgroundColor(bridge::UIColor color);
  // Its own, or the nearest superview's that has one, or the standard one.
  Color tint() const;
  bool clipsToBounds() const;
  bridge::CALayer layer() const { return _layer; }
  NSInteger tag() const { return _tag; }
  NSUInteger autoresizingMask() const { return _autoresizingMask; }

  // Tree. Subviews are from back to front; superview and window are borrowed, nil where none.
  const std::vector<bridge::Owned<bridge::UIView>>& subviews() const { return _subviews; }
  bridge::UIView superview() const { return _superview; }
  bridge::UIView window() const;
  // Says that this view is a window: the top of what is on screen.
  void standAsWindow() { _isWindow = true; }
  bool isDescendantOf(bridge::UIView view) const;
  void insertSubview(bridge::UIView view, std::size_t index);
  // The controller whose view this is, or nil; set by the controller, borrowed.
  bridge::UIResponder controller() const { return _controller; }
  void setController(bridge::UIResponder controller) { _controller = controller; }

  const std::vector<bridge::Owned<bridge::UIGestureRecognizer>>& gestureRecognizers() const {
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
  bridge::UIView initWithFrame(CGRect frame);
  bridge::UIView init();
  bridge::UIColor backgroundColorObject() const;
  bridge::UIColor tintColor() const;
  void setTintColor(bridge::UIColor color);
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

  bridge::NSArray subviewsArray() const;
  void addSubview(bridge::UIView view);
  void insertSubviewAtIndex(bridge::UIView view, NSInteger index);
  void insertAbove(bridge::UIView view, bridge::UIView sibling);
  void insertBelow(bridge::UIView view, bridge::UIView sibling);
  void bringToFront(bridge::UIView view);
  void sendToBack(bridge::UIView view);
  void removeFromSuperview();
  void willMoveToSuperview(bridge::UIView) {}
  void didMoveToSuperview() {}
  void didMoveToWindow() {}
  bridge::UIView viewWithTag(NSInteger tag);
  bridge::UIResponder nextResponder() const;

  void layoutSubviews() {}
  void layoutIfNeeded();
  CGSize sizeThatFits(CGSize size) const;
  void sizeToFit();
  void resizeSubviews(CGSize oldSize);

  bridge::UIView hitTest(CGPoint point, bridge::UIEvent event);
  bool pointInside(CGPoint point, bridge::UIEvent event) const;
  CGPoint convertPointTo(CGPoint point, bridge::UIView view) const;
  CGPoint convertPointFrom(CGPoint point, bridge::UIView view) const;
  CGRect convertRectTo(CGRect rect, bridge::UIView view) const;
  CGRect convertRectFrom(CGRect rect, bridge::UIView view) const;

  // What scrolls answers these otherwise: a wheel over it, and whether a touch in it may be one
  // that scrolls.
  bool scrollBy(CGPoint) { return false; }
  bool delaysTouches() const { return false; }

  bridge::NSArray gestureRecognizersArray() const;
  void addGestureRecognizer(bridge::UIGestureRecognizer recognizer);
  void removeGestureRecognizer(bridge::UIGestureRecognizer recognizer);

  // Moves to another appearance: animated where an animation is being described.
  void become(const ViewAppearance& appearance);
  void detach(bridge::UIView subview);
  void tellMovedToWindow();
  bool layOut();

  ViewAppearance _own;
  bridge::Owned<bridge::UIColor> _tintColor;  // nil: inherited
  bridge::Owned<bridge::CALayer> _layer;
  std::vector<bridge::Owned<bridge::UIView>> _subviews;
  bridge::UIView _superview;        // borrowed
  bridge::UIResponder _controller;  // borrowed
  std::vector<bridge::Owned<bridge::UIGestureRecognizer>> _gestureRecognizers;
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
