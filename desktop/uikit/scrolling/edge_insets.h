// SPDX-License-Identifier: MIT
//
// Distances from the edges inwards, in points.
#pragma once

#include "bridge/geometry.h"
#include "bridge/runtime/encoding.h"
#include "desktop/platform.h"

namespace desktop::uikit {

struct EdgeInsets {
  CGFloat top = 0;
  CGFloat left = 0;
  CGFloat bottom = 0;
  CGFloat right = 0;
  bool operator==(const EdgeInsets&) const = default;
};

constexpr EdgeInsets operator+(const EdgeInsets& first, const EdgeInsets& second) {
  return {first.top + second.top, first.left + second.left, first.bottom + second.bottom,
          first.right + second.right};
}

}  // namespace desktop::uikit

template <>
struct bridge::Encoding<desktop::uikit::EdgeInsets> {
  static constexpr FixedString text = "{UIEdgeInsets=dddd}";
};
