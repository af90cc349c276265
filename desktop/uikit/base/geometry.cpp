// SPDX-License-Identifier: MIT
#include "desktop/uikit/base/geometry.h"

#include <algorithm>
#include <cmath>

namespace desktop::uikit {

bool isFinite(CGRect rect) {
  return std::isfinite(rect.origin.x) && std::isfinite(rect.origin.y) &&
         std::isfinite(rect.size.width) && std::isfinite(rect.size.height);
}

bool intersects(CGRect left, CGRect right) {
  return !isEmpty(intersection(left, right));
}

CGRect intersection(CGRect left, CGRect right) {
  const CGFloat x = std::max(left.origin.x, right.origin.x);
  const CGFloat y = std::max(left.origin.y, right.origin.y);
  const CGRect shared = {{x, y},
                         {std::min(uikit::right(left), uikit::right(right)) - x,
                          std::min(bottom(left), bottom(right)) - y}};
  return isEmpty(shared) ? CGRect{} : shared;
}

CGRect unionOf(CGRect left, CGRect right) {
  if (isEmpty(left)) return right;
  if (isEmpty(right)) return left;
  const CGFloat x = std::min(left.origin.x, right.origin.x);
  const CGFloat y = std::min(left.origin.y, right.origin.y);
  return {{x, y},
          {std::max(uikit::right(left), uikit::right(right)) - x,
           std::max(bottom(left), bottom(right)) - y}};
}

CGRect apply(const CGAffineTransform& by, CGRect rect) {
  const CGPoint corners[] = {apply(by, rect.origin), apply(by, CGPoint{right(rect), rect.origin.y}),
                             apply(by, CGPoint{rect.origin.x, bottom(rect)}),
                             apply(by, CGPoint{right(rect), bottom(rect)})};
  CGPoint least = corners[0];
  CGPoint most = corners[0];
  for (const CGPoint corner : corners) {
    least = {std::min(least.x, corner.x), std::min(least.y, corner.y)};
    most = {std::max(most.x, corner.x), std::max(most.y, corner.y)};
  }
  return {least, {most.x - least.x, most.y - least.y}};
}

CGAffineTransform inverse(const CGAffineTransform& t) {
  const CGFloat determinant = t.a * t.d - t.b * t.c;
  if (determinant == 0 || !std::isfinite(determinant)) return t;
  return {t.d / determinant,
          -t.b / determinant,
          -t.c / determinant,
          t.a / determinant,
          (t.c * t.ty - t.d * t.tx) / determinant,
          (t.b * t.tx - t.a * t.ty) / determinant};
}

}  // namespace desktop::uikit
