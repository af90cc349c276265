// SPDX-License-Identifier: MIT
//
// A path of lines and curves as a plain value, in points.
#pragma once

#include <vector>

#include "desktop/uikit/base/geometry.h"

namespace desktop::uikit {

class Path {
 public:
  enum class Step { move, line, curve, close };
  struct Element {
    Step step;
    CGPoint point;     // where it ends; unused by close
    CGPoint control1;  // of a curve
    CGPoint control2;  // of a curve
    bool operator==(const Element&) const = default;
  };

  static Path rect(CGRect rect);
  static Path roundedRect(CGRect rect, CGFloat radius);
  static Path ellipse(CGRect rect);

  Path& moveTo(CGPoint point);
  Path& lineTo(CGPoint point);
  Path& curveTo(CGPoint point, CGPoint control1, CGPoint control2);
  Path& close();

  const std::vector<Element>& elements() const { return _elements; }
  // The rectangle around all points, control points included; empty for an empty path.
  CGRect bounds() const;
  bool operator==(const Path&) const = default;

 private:
  std::vector<Element> _elements;
};

}  // namespace desktop::uikit
