// SPDX-License-Identifier: MIT
//
// UIBezierPath. A path is its own Core Graphics path: a CGPathRef points at a UIBezierPath.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_appearance.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/path.h"

namespace desktop::uikit {

class UIBezierPathState : public Bound<UIBezierPathState, NSObject, UIBezierPath> {
 public:
  using Bound::Bound;
  static Class classObject();

  static UIBezierPath make(Path path);  // autoreleased
  // Null for nil and for what is no path. Borrowed.
  static const Path* valueOf(Object path);

 private:
  static UIBezierPath withRect(CGRect rect) { return make(Path::rect(rect)); }
  static UIBezierPath withRoundedRect(CGRect rect, CGFloat radius) {
    return make(Path::roundedRect(rect, radius));
  }
  static UIBezierPath withOval(CGRect rect) { return make(Path::ellipse(rect)); }
  CGPathRef cgPath() const { return reinterpret_cast<CGPathRef>(self().get()); }
  CGRect bounds() const { return _path.bounds(); }

  Path _path;
};

}  // namespace desktop::uikit
