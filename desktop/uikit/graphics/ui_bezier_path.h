// SPDX-License-Identifier: MIT
//
// UIBezierPath. A path is its own Core Graphics path: a CGPathRef points at a UIBezierPath.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit/ui_appearance.h"
#include "desktop/uikit/graphics/path.h"

namespace desktop::uikit {

class UIBezierPath : public bridge::Bound<UIBezierPath, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  static bridge::UIBezierPath make(Path path);  // autoreleased
  // Null for nil and for what is no path. Borrowed.
  static const Path* valueOf(bridge::Object path);

 private:
  static bridge::UIBezierPath withRect(CGRect rect) { return make(Path::rect(rect)); }
  static bridge::UIBezierPath withRoundedRect(CGRect rect, CGFloat radius) {
    return make(Path::roundedRect(rect, radius));
  }
  static bridge::UIBezierPath withOval(CGRect rect) { return make(Path::ellipse(rect)); }
  CGPathRef cgPath() const { return reinterpret_cast<CGPathRef>(self().get()); }
  CGRect bounds() const { return _path.bounds(); }

  Path _path;
};

}  // namespace desktop::uikit
