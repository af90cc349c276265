// SPDX-License-Identifier: MIT
//
// Views, their gestures, and the screen. Coordinates are in points; frames in the superview's.
#pragma once

#include "bridge/block.h"
#include "bridge/quartz.h"
#include "bridge/uikit/ui_appearance.h"

namespace bridge {

struct UIEvent;
struct UIGestureRecognizer;
struct UITouch;
struct UIView;

enum ViewAutoresizing : NSUInteger { flexibleWidth = 2, flexibleHeight = 16 };

// What every object that takes touches has.
struct UIResponder : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"UIResponder">(); }

  // Who is asked what this one does not answer; nil at the end.
  UIResponder nextResponder() const { return send<UIResponder, "nextResponder">(*this); }
  bool canBecomeFirstResponder() const { return send<bool, "canBecomeFirstResponder">(*this); }
  // Whether it did.
  bool becomeFirstResponder() const { return send<bool, "becomeFirstResponder">(*this); }
  bool resignFirstResponder() const { return send<bool, "resignFirstResponder">(*this); }
  bool canPerform(SEL action, Object sender) const {
    return send<bool, "canPerformAction:withSender:">(*this, action, sender);
  }
  void copy(Object sender) const { send<void, "copy:">(*this, sender); }
  inline void touchesBegan(NSSet touches, UIEvent event) const;
  inline void touchesMoved(NSSet touches, UIEvent event) const;
  inline void touchesEnded(NSSet touches, UIEvent event) const;
  inline void touchesCancelled(NSSet touches, UIEvent event) const;
};

struct UIView : UIResponder {
  using UIResponder::UIResponder;
  static Class classObject() { return classNamed<"UIView">(); }

  CGRect frame() const { return send<CGRect, "frame">(*this); }
  void setFrame(CGRect frame) const { send<void, "setFrame:">(*this, frame); }
  CGRect bounds() const { return send<CGRect, "bounds">(*this); }
  void setAlpha(CGFloat alpha) const { send<void, "setAlpha:">(*this, alpha); }
  void setTag(NSInteger tag) const { send<void, "setTag:">(*this, tag); }
  void setTransform(CGAffineTransform transform) const {
    send<void, "setTransform:">(*this, transform);
  }
  void setBackgroundColor(UIColor color) const { send<void, "setBackgroundColor:">(*this, color); }
  UIColor tintColor() const { return send<UIColor, "tintColor">(*this); }
  void setClipsToBounds(bool clips) const { send<void, "setClipsToBounds:">(*this, clips); }
  void setAutoresizingMask(NSUInteger mask) const {
    send<void, "setAutoresizingMask:">(*this, mask);
  }
  void setTranslatesAutoresizingMaskIntoConstraints(bool translates) const {
    send<void, "setTranslatesAutoresizingMaskIntoConstraints:">(*this, translates);
  }
  CALayer layer() const { return send<CALayer, "layer">(*this); }

  // What is said of it to those who do not see it; nil where nothing is.
  NSString accessibilityLabel() const { return send<NSString, "accessibilityLabel">(*this); }

  NSArray subviews() const { return send<NSArray, "subviews">(*this); }
  void addSubview(UIView view) const { send<void, "addSubview:">(*this, view); }
  void bringSubviewToFront(UIView view) const { send<void, "bringSubviewToFront:">(*this, view); }
  void removeFromSuperview() const { send<void, "removeFromSuperview">(*this); }
  void sizeToFit() const { send<void, "sizeToFit">(*this); }

  // Nil where there are none.
  NSArray gestureRecognizers() const { return send<NSArray, "gestureRecognizers">(*this); }
  inline void addGestureRecognizer(UIGestureRecognizer recognizer) const;
  inline void removeGestureRecognizer(UIGestureRecognizer recognizer) const;

  // Durations are in seconds.
  static void animate(double duration, const Block<void()>& animations) {
    send<void, "animateWithDuration:animations:">(classObject(), duration, animations);
  }
  static void animate(double duration, const Block<void()>& animations,
                      const Block<void(bool)>& completion) {
    send<void, "animateWithDuration:animations:completion:">(classObject(), duration, animations,
                                                             completion);
  }

  void setBounds(CGRect bounds) const { send<void, "setBounds:">(*this, bounds); }
  void setCenter(CGPoint center) const { send<void, "setCenter:">(*this, center); }
  void setHidden(bool hidden) const { send<void, "setHidden:">(*this, hidden); }
  void setUserInteractionEnabled(bool enabled) const {
    send<void, "setUserInteractionEnabled:">(*this, enabled);
  }
  NSInteger contentMode() const { return send<NSInteger, "contentMode">(*this); }
  CGSize sizeThatFits(CGSize size) const { return send<CGSize, "sizeThatFits:">(*this, size); }
  void setNeedsDisplay() const { send<void, "setNeedsDisplay">(*this); }
  void layoutIfNeeded() const { send<void, "layoutIfNeeded">(*this); }
  void layoutSubviews() const { send<void, "layoutSubviews">(*this); }
  // Between the view's coordinates and another's; nil is the window.
  CGRect convertTo(CGRect rect, UIView view) const {
    return send<CGRect, "convertRect:toView:">(*this, rect, view);
  }
  CGRect convertFrom(CGRect rect, UIView view) const {
    return send<CGRect, "convertRect:fromView:">(*this, rect, view);
  }
  // The deepest view below it that the point is in, or itself; nil where it is outside.
  inline UIView hitTest(CGPoint point, UIEvent event) const;
  inline bool pointInside(CGPoint point, UIEvent event) const;
  // Nil is none.
  void willMoveToSuperview(UIView superview) const {
    send<void, "willMoveToSuperview:">(*this, superview);
  }
  void didMoveToSuperview() const { send<void, "didMoveToSuperview">(*this); }
  void didMoveToWindow() const { send<void, "didMoveToWindow">(*this); }
};

// A new view of a handle's class, or of one below it, with the frame.
template <Handle T>
Owned<T> makeView(CGRect frame, Class aClass = T::classObject()) {
  return makeWith<T, "initWithFrame:">(aClass, frame);
}

struct UIGestureRecognizer : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"UIGestureRecognizer">(); }

  enum State : NSInteger { possible, began, changed, ended, cancelled, failed };

  State state() const { return static_cast<State>(send<NSInteger, "state">(*this)); }
  CGPoint locationIn(UIView view) const { return send<CGPoint, "locationInView:">(*this, view); }
  void setDelegate(NSObject delegate) const { send<void, "setDelegate:">(*this, delegate); }
  void setDelaysTouchesBegan(bool delays) const {
    send<void, "setDelaysTouchesBegan:">(*this, delays);
  }
  // Nil where it is on none.
  UIView view() const { return send<UIView, "view">(*this); }
  void requireToFail(UIGestureRecognizer other) const {
    send<void, "requireGestureRecognizerToFail:">(*this, other);
  }

  // What the classes below it see of the touches.
  inline void touchesBegan(NSSet touches, UIEvent event) const;
  inline void touchesMoved(NSSet touches, UIEvent event) const;
  inline void touchesEnded(NSSet touches, UIEvent event) const;
  inline void touchesCancelled(NSSet touches, UIEvent event) const;
  // Back to possible, once a gesture is over.
  void reset() const { send<void, "reset">(*this); }
};

struct UILongPressGestureRecognizer : UIGestureRecognizer {
  using UIGestureRecognizer::UIGestureRecognizer;
  static Class classObject() { return classNamed<"UILongPressGestureRecognizer">(); }

  static Owned<UILongPressGestureRecognizer> make(NSObject target, SEL action) {
    return makeWith<UILongPressGestureRecognizer, "initWithTarget:action:">(classObject(), target,
                                                                            action);
  }
  // In seconds.
  void setMinimumPressDuration(double duration) const {
    send<void, "setMinimumPressDuration:">(*this, duration);
  }
};

inline void UIView::addGestureRecognizer(UIGestureRecognizer recognizer) const {
  send<void, "addGestureRecognizer:">(*this, recognizer);
}
inline void UIView::removeGestureRecognizer(UIGestureRecognizer recognizer) const {
  send<void, "removeGestureRecognizer:">(*this, recognizer);
}

struct UITouch : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"UITouch">(); }

  CGPoint locationIn(UIView view) const { return send<CGPoint, "locationInView:">(*this, view); }
};

struct UIEvent : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"UIEvent">(); }
};

inline void UIResponder::touchesBegan(NSSet touches, UIEvent event) const {
  send<void, "touchesBegan:withEvent:">(*this, touches, event);
}
inline void UIResponder::touchesMoved(NSSet touches, UIEvent event) const {
  send<void, "touchesMoved:withEvent:">(*this, touches, event);
}
inline void UIResponder::touchesEnded(NSSet touches, UIEvent event) const {
  send<void, "touchesEnded:withEvent:">(*this, touches, event);
}
inline void UIResponder::touchesCancelled(NSSet touches, UIEvent event) const {
  send<void, "touchesCancelled:withEvent:">(*this, touches, event);
}
inline void UIGestureRecognizer::touchesBegan(NSSet touches, UIEvent event) const {
  send<void, "touchesBegan:withEvent:">(*this, touches, event);
}
inline void UIGestureRecognizer::touchesMoved(NSSet touches, UIEvent event) const {
  send<void, "touchesMoved:withEvent:">(*this, touches, event);
}
inline void UIGestureRecognizer::touchesEnded(NSSet touches, UIEvent event) const {
  send<void, "touchesEnded:withEvent:">(*this, touches, event);
}
inline void UIGestureRecognizer::touchesCancelled(NSSet touches, UIEvent event) const {
  send<void, "touchesCancelled:withEvent:">(*this, touches, event);
}
inline UIView UIView::hitTest(CGPoint point, UIEvent event) const {
  return send<UIView, "hitTest:withEvent:">(*this, point, event);
}
inline bool UIView::pointInside(CGPoint point, UIEvent event) const {
  return send<bool, "pointInside:withEvent:">(*this, point, event);
}

struct UIScreen : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"UIScreen">(); }
  static UIScreen mainScreen() { return send<UIScreen, "mainScreen">(classObject()); }

  CGRect bounds() const { return send<CGRect, "bounds">(*this); }
};

// A new recogniser of a handle's class with a target, which it does not keep; +1.
template <Handle T>
Owned<T> makeRecognizer(NSObject target, SEL action) {
  return makeWith<T, "initWithTarget:action:">(T::classObject(), target, action);
}

struct UITapGestureRecognizer : UIGestureRecognizer {
  using UIGestureRecognizer::UIGestureRecognizer;
  static Class classObject() { return classNamed<"UITapGestureRecognizer">(); }

  void setNumberOfTapsRequired(NSUInteger taps) const {
    send<void, "setNumberOfTapsRequired:">(*this, taps);
  }
};

struct UIPanGestureRecognizer : UIGestureRecognizer {
  using UIGestureRecognizer::UIGestureRecognizer;
  static Class classObject() { return classNamed<"UIPanGestureRecognizer">(); }

  CGPoint translationIn(UIView view) const {
    return send<CGPoint, "translationInView:">(*this, view);
  }
  CGPoint velocityIn(UIView view) const { return send<CGPoint, "velocityInView:">(*this, view); }
};

}  // namespace bridge
