// SPDX-License-Identifier: MIT
//
// Arithmetic on the platform's points, rectangles and transforms. All lengths are in points.
#pragma once

#include "bridge/coregraphics.h"
#include "bridge/geometry.h"
#include "desktop/platform.h"

namespace desktop::uikit {

constexpr CGPoint operator+(CGPoint left, CGPoint right) {
  return {left.x + right.x, left.y + right.y};
}
constexpr CGPoint operator-(CGPoint left, CGPoint right) {
  return {left.x - right.x, left.y - right.y};
}

constexpr CGFloat right(CGRect rect) {
  return rect.origin.x + rect.size.width;
}
constexpr CGFloat bottom(CGRect rect) {
  return rect.origin.y + rect.size.height;
}
constexpr CGPoint middle(CGRect rect) {
  return {rect.origin.x + rect.size.width / 2, rect.origin.y + rect.size.height / 2};
}
constexpr bool isEmpty(CGRect rect) {
  return !(rect.size.width > 0 && rect.size.height > 0);
}
constexpr CGRect offset(CGRect rect, CGPoint by) {
  return {rect.origin + by, rect.size};
}
// Smaller by the amount on each side; larger where it is negative.
constexpr CGRect inset(CGRect rect, CGFloat dx, CGFloat dy) {
  return {{rect.origin.x + dx, rect.origin.y + dy},
          {rect.size.width - 2 * dx, rect.size.height - 2 * dy}};
}
constexpr CGRect rectOfSize(CGSize size) {
  return {{0, 0}, size};
}

// Whether all four numbers are finite.
bool isFinite(CGRect rect);
bool intersects(CGRect left, CGRect right);
// What both share; empty where they share nothing.
CGRect intersection(CGRect left, CGRect right);
// The smallest rectangle around both; an empty one does not count.
CGRect unionOf(CGRect left, CGRect right);

constexpr CGPoint apply(const CGAffineTransform& by, CGPoint point) {
  return {by.a * point.x + by.c * point.y + by.tx, by.b * point.x + by.d * point.y + by.ty};
}
// The rectangle around the transformed rectangle.
CGRect apply(const CGAffineTransform& by, CGRect rect);
constexpr CGAffineTransform translation(CGPoint by) {
  return {1, 0, 0, 1, by.x, by.y};
}
// `first`, then `second`.
constexpr CGAffineTransform concat(const CGAffineTransform& first,
                                   const CGAffineTransform& second) {
  return {first.a * second.a + first.b * second.c,
          first.a * second.b + first.b * second.d,
          first.c * second.a + first.d * second.c,
          first.c * second.b + first.d * second.d,
          first.tx * second.a + first.ty * second.c + second.tx,
          first.tx * second.b + first.ty * second.d + second.ty};
}
// The transform itself where it has no inverse.
CGAffineTransform inverse(const CGAffineTransform& transform);

}  // namespace desktop::uikit
