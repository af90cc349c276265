// SPDX-License-Identifier: MIT
//
// The C functions of Core Graphics and of UIKit's bitmap contexts that are used.
#pragma once

#include "bridge/geometry.h"

using CGColorRef = struct CGColor*;
using CGContextRef = struct CGContext*;
using CGPathRef = const struct CGPath*;

#pragma GCC visibility push(default)
extern "C" {
// A bitmap of the size in points, of scale 1 and not opaque, becomes the current context.
void UIGraphicsBeginImageContext(CGSize size);
CGContextRef UIGraphicsGetCurrentContext();
id UIGraphicsGetImageFromCurrentImageContext();
void UIGraphicsEndImageContext();

void CGContextSetFillColorWithColor(CGContextRef context, CGColorRef color);
void CGContextFillRect(CGContextRef context, CGRect rect);
}
#pragma GCC visibility pop

namespace bridge {

// Points on the left and upper edges are in the rectangle, those on the others are not.
// REQUIRES: width and height are not negative.
constexpr bool contains(CGRect rect, CGPoint point) {
  return point.x >= rect.origin.x && point.x < rect.origin.x + rect.size.width &&
         point.y >= rect.origin.y && point.y < rect.origin.y + rect.size.height;
}

constexpr CGAffineTransform scaling(CGFloat x, CGFloat y) {
  return {x, 0, 0, y, 0, 0};
}

}  // namespace bridge
