// SPDX-License-Identifier: MIT
//
// What of a view is seen and can be animated. Lengths in points.
#pragma once

#include "desktop/platform.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/graphics/color.h"

namespace desktop::uikit {

struct ViewAppearance {
  CGRect bounds;
  CGPoint center;  // in the superview's coordinates
  CGAffineTransform transform;
  CGFloat alpha = 1;
  Color background;
  bool operator==(const ViewAppearance&) const = default;

  // In the superview's coordinates; the rectangle around a transformed view.
  CGRect frame() const;
  // From the view's coordinates to the superview's.
  CGAffineTransform toSuperview() const;

  // The same but for one thing. Rectangles that are not finite count as zero, a center that is
  // not finite is none, an alpha ends at 0 and 1.
  ViewAppearance withFrame(CGRect newFrame) const;
  ViewAppearance withBounds(CGRect newBounds) const;
  ViewAppearance withCenter(CGPoint newCenter) const;
  ViewAppearance withTransform(const CGAffineTransform& newTransform) const;
  ViewAppearance withAlpha(CGFloat newAlpha) const;
  ViewAppearance withBackground(Color newBackground) const;
};

}  // namespace desktop::uikit
