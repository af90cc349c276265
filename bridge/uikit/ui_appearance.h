// SPDX-License-Identifier: MIT
//
// Fonts, colours, paths, images and paragraph styles.
#pragma once

#include "bridge/coregraphics.h"
#include "bridge/foundation.h"

namespace bridge {

struct UIFont : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"UIFont">(); }

  // Sizes are in points.
  static UIFont systemFont(CGFloat size) {
    return send<UIFont, "systemFontOfSize:">(classObject(), size);
  }
  static UIFont named(NSString name, CGFloat size) {
    return send<UIFont, "fontWithName:size:">(classObject(), name, size);
  }

  NSString fontName() const { return send<NSString, "fontName">(*this); }
  CGFloat pointSize() const { return send<CGFloat, "pointSize">(*this); }
  CGFloat lineHeight() const { return send<CGFloat, "lineHeight">(*this); }
};

struct UIColor : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"UIColor">(); }

  // Grey between 0, black, and 1, white.
  static UIColor white(CGFloat white, CGFloat alpha) {
    return send<UIColor, "colorWithWhite:alpha:">(classObject(), white, alpha);
  }
  static UIColor blackColor() { return send<UIColor, "blackColor">(classObject()); }
  static UIColor whiteColor() { return send<UIColor, "whiteColor">(classObject()); }
  static UIColor clearColor() { return send<UIColor, "clearColor">(classObject()); }
  static UIColor grayColor() { return send<UIColor, "grayColor">(classObject()); }
  static UIColor greenColor() { return send<UIColor, "greenColor">(classObject()); }

  UIColor withAlpha(CGFloat alpha) const {
    return send<UIColor, "colorWithAlphaComponent:">(*this, alpha);
  }
  // Borrowed from the colour.
  CGColorRef cgColor() const { return send<CGColorRef, "CGColor">(*this); }
};

struct UIBezierPath : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"UIBezierPath">(); }
  static UIBezierPath withRect(CGRect rect) {
    return send<UIBezierPath, "bezierPathWithRect:">(classObject(), rect);
  }

  // Borrowed from the path.
  CGPathRef cgPath() const { return send<CGPathRef, "CGPath">(*this); }
};

struct UIImage : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"UIImage">(); }

  // In points.
  CGSize size() const { return send<CGSize, "size">(*this); }
};

// Spacings and indents are in points.
struct NSParagraphStyle : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"NSParagraphStyle">(); }

  CGFloat paragraphSpacing() const { return send<CGFloat, "paragraphSpacing">(*this); }
  CGFloat paragraphSpacingBefore() const { return send<CGFloat, "paragraphSpacingBefore">(*this); }
  CGFloat firstLineHeadIndent() const { return send<CGFloat, "firstLineHeadIndent">(*this); }
  CGFloat headIndent() const { return send<CGFloat, "headIndent">(*this); }
};

struct NSMutableParagraphStyle : NSParagraphStyle {
  using NSParagraphStyle::NSParagraphStyle;
  static Class classObject() { return classNamed<"NSMutableParagraphStyle">(); }

  void setParagraphSpacing(CGFloat spacing) const {
    send<void, "setParagraphSpacing:">(*this, spacing);
  }
  void setParagraphSpacingBefore(CGFloat spacing) const {
    send<void, "setParagraphSpacingBefore:">(*this, spacing);
  }
  void setFirstLineHeadIndent(CGFloat indent) const {
    send<void, "setFirstLineHeadIndent:">(*this, indent);
  }
  void setHeadIndent(CGFloat indent) const { send<void, "setHeadIndent:">(*this, indent); }
};

// The names of text attributes, as the platform's constants hold them.
inline NSString fontAttributeName() {
  return NSString::make("NSFont");
}
inline NSString paragraphStyleAttributeName() {
  return NSString::make("NSParagraphStyle");
}

// The size of one line of the text in points, where the platform can measure: nil has none.
inline CGSize sizeWithAttributes(NSString text, NSDictionary attributes) {
  return send<CGSize, "sizeWithAttributes:">(text, attributes);
}

}  // namespace bridge
