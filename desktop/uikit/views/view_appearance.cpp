// SPDX-License-Identifier: MIT
#include "desktop/uikit/views/view_appearance.h"

#include <algorithm>
#include <cmath>

namespace desktop::uikit {

CGRect ViewAppearance::frame() const {
  const CGRect around = {{-bounds.size.width / 2, -bounds.size.height / 2}, bounds.size};
  return offset(apply(transform, around), center);
}

CGAffineTransform ViewAppearance::toSuperview() const {
  const CGPoint mid = middle(bounds);
  return concat(concat(translation({-mid.x, -mid.y}), transform), translation(center));
}

ViewAppearance ViewAppearance::withFrame(CGRect newFrame) const {
  if (!isFinite(newFrame)) newFrame = {};
  ViewAppearance next = *this;
  next.bounds.size = newFrame.size;
  next.center = middle(newFrame);
  return next;
}

ViewAppearance ViewAppearance::withBounds(CGRect newBounds) const {
  ViewAppearance next = *this;
  next.bounds = isFinite(newBounds) ? newBounds : CGRect{};
  return next;
}

ViewAppearance ViewAppearance::withCenter(CGPoint newCenter) const {
  ViewAppearance next = *this;
  if (std::isfinite(newCenter.x) && std::isfinite(newCenter.y)) next.center = newCenter;
  return next;
}

ViewAppearance ViewAppearance::withTransform(const CGAffineTransform& newTransform) const {
  ViewAppearance next = *this;
  next.transform = newTransform;
  return next;
}

ViewAppearance ViewAppearance::withAlpha(CGFloat newAlpha) const {
  ViewAppearance next = *this;
  next.alpha = newAlpha > 0 ? std::min(newAlpha, 1.0) : 0;
  return next;
}

ViewAppearance ViewAppearance::withBackground(Color newBackground) const {
  ViewAppearance next = *this;
  next.background = newBackground;
  return next;
}

}  // namespace desktop::uikit
