// SPDX-License-Identifier: MIT
//
// UIColor. A colour is its own Core Graphics colour: a CGColorRef points at a UIColor.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit/ui_appearance.h"
#include "desktop/uikit/graphics/color.h"

namespace desktop::uikit {

class UIColor : public bridge::Bound<UIColor, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  // A new colour; autoreleased.
  static bridge::UIColor make(Color color);
  // The value of a colour; clear for nil and for what is no colour.
  static Color valueOf(bridge::Object color);
  static Color valueOf(CGColorRef color);

  Color value() const { return _value; }

 private:
  static bridge::UIColor colorWithWhite(CGFloat white, CGFloat alpha);
  static bridge::UIColor colorWithRed(CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha);
  template <const Color& Value>
  static bridge::UIColor constant();

  bridge::UIColor withAlpha(CGFloat alpha) const { return make(_value.withAlpha(alpha)); }
  CGColorRef cgColor() const { return reinterpret_cast<CGColorRef>(self().get()); }
  bridge::Object copyWithZone(void* zone);
  bool isEqual(bridge::Object other) const;
  NSUInteger hash() const;

  Color _value;
};

}  // namespace desktop::uikit
