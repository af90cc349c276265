// SPDX-License-Identifier: MIT
//
// The small values of a dump.
#pragma once

#include <nlohmann/json.hpp>

#include "bridge/geometry.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/color.h"

namespace desktop::script {

using Json = nlohmann::ordered_json;

inline Json jsonOf(CGRect rect) {
  return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}
inline Json jsonOf(CGSize size) {
  return {size.width, size.height};
}
inline Json jsonOf(CGPoint point) {
  return {point.x, point.y};
}
inline Json jsonOf(uikit::Color color) {
  return {color.red, color.green, color.blue, color.alpha};
}
inline Json jsonOf(const CGAffineTransform& t) {
  return {t.a, t.b, t.c, t.d, t.tx, t.ty};
}

}  // namespace desktop::script
