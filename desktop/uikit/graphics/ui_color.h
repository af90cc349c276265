// SPDX-License-Identifier: MIT
//
// UIColor. A colour is its own Core Graphics colour: a CGColorRef points at a UIColor.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_appearance.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/color.h"

namespace desktop::uikit {

class UIColorState : public Bound<UIColorState, NSObject, UIColor> {
 public:
  using Bound::Bound;
  static Class classObject();

  // A new colour; autoreleased.
  static UIColor make(Color color);
  // The value of a colour; clear for nil and for what is no colour.
  static Color valueOf(Object color);
  static Color valueOf(CGColorRef color);

  Color value() const { return _value; }

 private:
  static UIColor colorWithWhite(CGFloat white, CGFloat alpha);
  static UIColor colorWithRed(CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha);
  template <const Color& Value>
  static UIColor constant();

  UIColor withAlpha(CGFloat alpha) const { return make(_value.withAlpha(alpha)); }
  CGColorRef cgColor() const { return reinterpret_cast<CGColorRef>(self().get()); }
  Object copyWithZone(void* zone);
  bool isEqual(Object other) const;
  NSUInteger hash() const;

  Color _value;
};

}  // namespace desktop::uikit
