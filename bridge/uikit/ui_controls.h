// SPDX-License-Identifier: MIT
//
// Labels, buttons and text views.
#pragma once

#include "bridge/uikit/ui_view.h"

namespace bridge {

enum TextAlignment : NSInteger { alignLeft = 0, alignCenter = 1 };
enum LineBreakMode : NSInteger { breakByClipping = 2 };
enum ControlState : NSUInteger { stateNormal = 0, stateHighlighted = 1 };
enum ControlEvents : NSUInteger { touchUpInside = 64 };

struct UIScrollView : UIView {
  using UIView::UIView;
  static Class classObject() { return classNamed<"UIScrollView">(); }

  enum InsetAdjustment : NSInteger { adjustsAlong = 0, adjustsNever = 2 };

  CGPoint contentOffset() const { return send<CGPoint, "contentOffset">(*this); }
  void setContentOffset(CGPoint offset) const { send<void, "setContentOffset:">(*this, offset); }
  CGSize contentSize() const { return send<CGSize, "contentSize">(*this); }
  void setContentSize(CGSize size) const { send<void, "setContentSize:">(*this, size); }
  void setContentOffset(CGPoint offset, bool animated) const {
    send<void, "setContentOffset:animated:">(*this, offset, animated);
  }
  void scrollRectToVisible(CGRect rect, bool animated) const {
    send<void, "scrollRectToVisible:animated:">(*this, rect, animated);
  }
  void setPagingEnabled(bool enabled) const { send<void, "setPagingEnabled:">(*this, enabled); }
  void setScrollEnabled(bool enabled) const { send<void, "setScrollEnabled:">(*this, enabled); }
  void setAlwaysBounceVertical(bool bounces) const {
    send<void, "setAlwaysBounceVertical:">(*this, bounces);
  }
  void setShowsHorizontalScrollIndicator(bool shows) const {
    send<void, "setShowsHorizontalScrollIndicator:">(*this, shows);
  }
  void setShowsVerticalScrollIndicator(bool shows) const {
    send<void, "setShowsVerticalScrollIndicator:">(*this, shows);
  }
  void setContentInsetAdjustmentBehavior(InsetAdjustment behavior) const {
    send<void, "setContentInsetAdjustmentBehavior:">(*this, NSInteger{behavior});
  }
  UIPanGestureRecognizer panGestureRecognizer() const {
    return send<UIPanGestureRecognizer, "panGestureRecognizer">(*this);
  }
};

struct UIImageView : UIView {
  using UIView::UIView;
  static Class classObject() { return classNamed<"UIImageView">(); }

  UIImage image() const { return send<UIImage, "image">(*this); }
  void setImage(UIImage image) const { send<void, "setImage:">(*this, image); }
};

struct UILabel : UIView {
  using UIView::UIView;
  static Class classObject() { return classNamed<"UILabel">(); }

  NSString text() const { return send<NSString, "text">(*this); }
  void setText(NSString text) const { send<void, "setText:">(*this, text); }
  void setFont(UIFont font) const { send<void, "setFont:">(*this, font); }
  void setTextColor(UIColor color) const { send<void, "setTextColor:">(*this, color); }
  void setTextAlignment(TextAlignment alignment) const {
    send<void, "setTextAlignment:">(*this, NSInteger{alignment});
  }
  void setNumberOfLines(NSInteger lines) const { send<void, "setNumberOfLines:">(*this, lines); }
  void setLineBreakMode(LineBreakMode mode) const {
    send<void, "setLineBreakMode:">(*this, NSInteger{mode});
  }
  void setAdjustsFontSizeToFitWidth(bool adjusts) const {
    send<void, "setAdjustsFontSizeToFitWidth:">(*this, adjusts);
  }
  void setMinimumFontSize(CGFloat points) const {
    send<void, "setMinimumFontSize:">(*this, points);
  }
  UIFont font() const { return send<UIFont, "font">(*this); }
  UIColor textColor() const { return send<UIColor, "textColor">(*this); }
  NSInteger textAlignment() const { return send<NSInteger, "textAlignment">(*this); }
  bool adjustsFontSizeToFitWidth() const { return send<bool, "adjustsFontSizeToFitWidth">(*this); }
  CGFloat minimumFontSize() const { return send<CGFloat, "minimumFontSize">(*this); }
};

struct UIControl : UIView {
  using UIView::UIView;
  static Class classObject() { return classNamed<"UIControl">(); }

  // Adding the same target, action and events again has no effect.
  void addTarget(NSObject target, SEL action, ControlEvents events) const {
    send<void, "addTarget:action:forControlEvents:">(*this, target, action, NSUInteger{events});
  }
  // To all targets for the events; to one, or with nil to the first that answers in the chain.
  void sendActions(ControlEvents events) const {
    send<void, "sendActionsForControlEvents:">(*this, NSUInteger{events});
  }
  void sendAction(SEL action, Object target, UIEvent event) const {
    send<void, "sendAction:to:forEvent:">(*this, action, target, event);
  }
  bool isEnabled() const { return send<bool, "isEnabled">(*this); }
  void setEnabled(bool enabled) const { send<void, "setEnabled:">(*this, enabled); }
  void setHighlighted(bool highlighted) const { send<void, "setHighlighted:">(*this, highlighted); }

  // Of the touch on it; whether it goes on.
  bool beginTracking(UITouch touch, UIEvent event) const {
    return send<bool, "beginTrackingWithTouch:withEvent:">(*this, touch, event);
  }
  bool continueTracking(UITouch touch, UIEvent event) const {
    return send<bool, "continueTrackingWithTouch:withEvent:">(*this, touch, event);
  }
  void endTracking(UITouch touch, UIEvent event) const {
    send<void, "endTrackingWithTouch:withEvent:">(*this, touch, event);
  }
  void cancelTracking(UIEvent event) const { send<void, "cancelTrackingWithEvent:">(*this, event); }
};

struct UIButton : UIControl {
  using UIControl::UIControl;
  static Class classObject() { return classNamed<"UIButton">(); }

  enum Type : NSInteger { custom = 0, infoLight = 3 };

  static UIButton withType(Type type) {
    return send<UIButton, "buttonWithType:">(classObject(), NSInteger{type});
  }

  UILabel titleLabel() const { return send<UILabel, "titleLabel">(*this); }
  void setTitle(NSString title, ControlState state) const {
    send<void, "setTitle:forState:">(*this, title, NSUInteger{state});
  }
  void setTitleColor(UIColor color, ControlState state) const {
    send<void, "setTitleColor:forState:">(*this, color, NSUInteger{state});
  }
  NSString currentTitle() const { return send<NSString, "currentTitle">(*this); }
};

// A stretch of a text view's text, and a place in it; made by the text view alone.
struct UITextPosition : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"UITextPosition">(); }
};

struct UITextRange : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"UITextRange">(); }

  UITextPosition start() const { return send<UITextPosition, "start">(*this); }
  UITextPosition end() const { return send<UITextPosition, "end">(*this); }
};

struct UITextView : UIScrollView {
  using UIScrollView::UIScrollView;
  static Class classObject() { return classNamed<"UITextView">(); }

  NSString text() const { return send<NSString, "text">(*this); }
  void setAttributedText(NSAttributedString text) const {
    send<void, "setAttributedText:">(*this, text);
  }
  void setFont(UIFont font) const { send<void, "setFont:">(*this, font); }
  void setTextAlignment(TextAlignment alignment) const {
    send<void, "setTextAlignment:">(*this, NSInteger{alignment});
  }
  void setEditable(bool editable) const { send<void, "setEditable:">(*this, editable); }
  // Not retained.
  void setDelegate(NSObject delegate) const { send<void, "setDelegate:">(*this, delegate); }

  // Nil where nothing is selected; nil clears the selection.
  UITextRange selectedTextRange() const { return send<UITextRange, "selectedTextRange">(*this); }
  void setSelectedTextRange(UITextRange range) const {
    send<void, "setSelectedTextRange:">(*this, range);
  }
  void selectAll(NSObject sender) const { send<void, "selectAll:">(*this, sender); }
  UITextPosition beginningOfDocument() const {
    return send<UITextPosition, "beginningOfDocument">(*this);
  }
  // In UTF-16 units.
  NSInteger offset(UITextPosition from, UITextPosition to) const {
    return send<NSInteger, "offsetFromPosition:toPosition:">(*this, from, to);
  }
  UIFont font() const { return send<UIFont, "font">(*this); }
  UIColor textColor() const { return send<UIColor, "textColor">(*this); }
  NSInteger textAlignment() const { return send<NSInteger, "textAlignment">(*this); }
  bool isEditable() const { return send<bool, "isEditable">(*this); }
  NSAttributedString attributedText() const {
    return send<NSAttributedString, "attributedText">(*this);
  }
  NSRange selectedRange() const { return send<NSRange, "selectedRange">(*this); }
};

}  // namespace bridge
