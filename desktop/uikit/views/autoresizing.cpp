// SPDX-License-Identifier: MIT
#include "desktop/uikit/views/autoresizing.h"

#include <algorithm>

namespace desktop::uikit {
namespace {

enum Mask : NSUInteger {
  leftMargin = 1,
  width = 2,
  rightMargin = 4,
  topMargin = 8,
  height = 16,
  bottomMargin = 32
};

struct Stretch {
  CGFloat origin;
  CGFloat length;
};

// One direction of it.
Stretch stretched(Stretch old, CGFloat oldWhole, CGFloat newWhole, bool before, bool itself,
                  bool after) {
  const CGFloat gain = newWhole - oldWhole;
  const CGFloat behind = oldWhole - old.origin - old.length;
  const CGFloat flexible =
      (before ? old.origin : 0) + (itself ? old.length : 0) + (after ? behind : 0);
  const int parts = int{before} + int{itself} + int{after};
  if (parts == 0) return old;
  const auto share = [&](CGFloat part) {
    return flexible > 0 ? gain * part / flexible : gain / parts;
  };
  if (before) old.origin += share(old.origin);
  if (itself) old.length = std::max(0.0, old.length + share(old.length));
  return old;
}

}  // namespace

CGRect autoresized(CGRect frame, NSUInteger mask, CGSize oldSize, CGSize newSize) {
  const Stretch x = stretched({frame.origin.x, frame.size.width}, oldSize.width, newSize.width,
                              mask & leftMargin, mask & width, mask & rightMargin);
  const Stretch y = stretched({frame.origin.y, frame.size.height}, oldSize.height, newSize.height,
                              mask & topMargin, mask & height, mask & bottomMargin);
  return {{x.origin, y.origin}, {x.length, y.length}};
}

}  // namespace desktop::uikit
