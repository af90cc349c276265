// SPDX-License-Identifier: MIT
//
// UIView: a rectangle in a tree of views. All lengths are in points; a frame is in the superview's
// coordinates, bounds are in the view's own.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_view.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/views/subview_order.h"
#include "desktop/uikit/views/ui_responder.h"
#include "desktop/uikit/views/view_appearance.h"
#include "desktop/uikit/views/view_gestures.h"

namespace desktop::uikit {

class UIViewState : public Bound<UIViewState, UIResponderState, UIView> {
 public:
  explicit UIViewState(id self);
  ~UIViewState();
  static Class classObject();

  // Geometry.
  CGRect frame() const { return _own.frame(); }
  void setFrame(CGRect frame) { become(_own.withFrame(frame)); }
  CGRect bounds() const { return _own.bounds; }
  void setBounds(CGRect bounds) { become(_own.withBounds(bounds)); }
  CGPoint center() const { return _own.center; }
  void setCenter(CGPoint center) { become(_own.withCenter(center)); }
  CGAffineTransform transform() const { return _own.transform; }
  void setTransform(CGAffineTransform transform) { become(_own.withTransform(transform)); }
  NSUInteger autoresizingMask() const { return _autoresizingMask; }
  // What is on screen at this moment, which differs from the view's own while animations run.
  ViewAppearance shown() const;
  // From the view's coordinates to the superview's and to the screen's, as shown now.
  CGAffineTransform toSuperview() const { return shown().toSuperview(); }
  CGAffineTransform toScreen() const;

  // Look.
  CGFloat alpha() const { return _own.alpha; }
  void setAlpha(CGFloat alpha) { become(_own.withAlpha(alpha)); }
  bool isHidden() const { return _isHidden; }
  void setHidden(bool hidden);
  Color backgroundColor() const { return _own.background; }
  // Its own, or the nearest superview's that has one, or the standard one.
  Color tint() const;
  bool clipsToBounds() const;
  bool isUserInteractionEnabled() const { return _isUserInteractionEnabled; }
  CALayer layer() const { return _layer; }
  NSInteger tag() const { return _tag; }

  // Tree. Subviews are from back to front; superview and window are borrowed, nil where none.
  const ObjectList<UIView>& subviews() const { return _subviews.all(); }
  UIView superview() const { return _superview; }
  UIView window() const;
  // Of its bounds what lies in its window; all of them outside one.
  CGRect partInSight() const;
  // Says that this view is a window: the top of what is on screen.
  void standAsWindow() { _isWindow = true; }
  bool isDescendantOf(UIView view) const;
  void insertSubview(UIView view, std::size_t index);
  // The controller whose view this is, or nil; set by the controller, borrowed.
  void setController(UIResponder controller) { _controller = controller; }
  const ObjectList<UIGestureRecognizer>& gestureRecognizers() const { return _gestures.all(); }

  // Asks for another layout pass or for painting again before the next frame.
  void setNeedsLayout() { _needsLayout = true; }
  void setNeedsDisplay() const;

 private:
  // What is bound of its look.
  UIView init();
  UIView initWithFrame(CGRect frame);
  UIColor backgroundColorObject() const;
  void setBackgroundColor(UIColor color);
  UIColor tintColor() const;
  void setTintColor(UIColor color);
  void setClipsToBounds(bool clips);
  NSInteger contentMode() const { return _contentMode; }
  void setContentMode(NSInteger mode);
  bool isOpaque() const { return _isOpaque; }
  void setOpaque(bool opaque) { _isOpaque = opaque; }
  void setTag(NSInteger tag) { _tag = tag; }

  // Of the tree.
  NSArray subviewsArray() const { return arrayOf(subviews()); }
  void addSubview(UIView view) { insertSubview(view, subviews().size()); }
  void insertSubviewAtIndex(UIView view, NSInteger index);
  void insertAbove(UIView view, UIView sibling) {
    insertSubview(view, _subviews.indexAbove(sibling));
  }
  void insertBelow(UIView view, UIView sibling) {
    insertSubview(view, _subviews.indexBelow(sibling));
  }
  void bringToFront(UIView view);
  void sendToBack(UIView view);
  void removeFromSuperview();
  UIView viewWithTag(NSInteger tag);
  UIResponder nextResponder() const;

  // Of layout.
  void setAutoresizingMask(NSUInteger mask) { _autoresizingMask = mask; }
  bool translatesMask() const { return _translatesMask; }
  void setTranslatesMask(bool translates) { _translatesMask = translates; }
  void layoutIfNeeded();
  CGSize sizeThatFits(CGSize) const { return _own.bounds.size; }
  void sizeToFit();

  // Of touches, and of places.
  void setUserInteractionEnabled(bool enabled) { _isUserInteractionEnabled = enabled; }
  UIView hitTest(CGPoint point, UIEvent event);
  bool pointInside(CGPoint point, UIEvent) const { return contains(_own.bounds, point); }
  template <typename Place>
  Place convertTo(Place place, UIView view) const;
  template <typename Place>
  Place convertFrom(Place place, UIView view) const;
  NSArray gestureRecognizersArray() const { return arrayOrNil(gestureRecognizers()); }
  void addGestureRecognizer(UIGestureRecognizer recognizer) { _gestures.add(recognizer, self()); }
  void removeGestureRecognizer(UIGestureRecognizer recognizer) { _gestures.remove(recognizer); }

  // How the parts work together.
  void become(const ViewAppearance& appearance);
  void resizeSubviews(CGSize oldSize);
  bool layOut();
  void detach(UIView subview);
  void tellMovedToWindow();

  ViewAppearance _own;
  Owned<UIColor> _tintColor;  // nil: inherited
  Owned<CALayer> _layer;
  SubviewOrder _subviews;
  UIView _superview;        // borrowed
  UIResponder _controller;  // borrowed
  ViewGestures _gestures;
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

}  // namespace desktop::uikit
