// SPDX-License-Identifier: MIT
//
// Encodings of the opaque structures that cross the runtime.
#pragma once

#include "bridge/coregraphics.h"
#include "desktop/platform.h"

namespace desktop::uikit {
class Canvas;
}

// clang-format off
namespace bridge {
template <> struct Encoding<desktop::uikit::Canvas> { static constexpr FixedString text = "{Canvas=}"; };
template <> struct Encoding<struct CGColor>      { static constexpr FixedString text = "{CGColor=}"; };
template <> struct Encoding<const struct CGPath> { static constexpr FixedString text = "{CGPath=}"; };
}  // namespace bridge
// clang-format on
