// SPDX-License-Identifier: MIT
//
// The platform's small structures, in points, with the encodings that both runtimes give them.
#pragma once

#include "bridge/runtime/encoding.h"

using CGFloat = double;
using NSInteger = long;
using NSUInteger = unsigned long;

struct CGPoint {
  CGFloat x = 0;
  CGFloat y = 0;
  bool operator==(const CGPoint&) const = default;
};

struct CGSize {
  CGFloat width = 0;
  CGFloat height = 0;
  bool operator==(const CGSize&) const = default;
};

struct CGRect {
  CGPoint origin;
  CGSize size;
  bool operator==(const CGRect&) const = default;
};

// x' = a x + c y + tx, y' = b x + d y + ty.
struct CGAffineTransform {
  CGFloat a = 1;
  CGFloat b = 0;
  CGFloat c = 0;
  CGFloat d = 1;
  CGFloat tx = 0;
  CGFloat ty = 0;
  bool operator==(const CGAffineTransform&) const = default;
};

struct NSRange {
  NSUInteger location = 0;  // in UTF-16 units
  NSUInteger length = 0;
  bool operator==(const NSRange&) const = default;
};

// Where nothing was found.
inline constexpr NSInteger NSNotFound = 0x7fffffffffffffff;

// clang-format off
namespace bridge {
template <> struct Encoding<CGPoint> { static constexpr FixedString text = "{CGPoint=dd}"; };
template <> struct Encoding<CGSize>  { static constexpr FixedString text = "{CGSize=dd}"; };
template <> struct Encoding<CGRect>  { static constexpr FixedString text = "{CGRect={CGPoint=dd}{CGSize=dd}}"; };
template <> struct Encoding<CGAffineTransform> { static constexpr FixedString text = "{CGAffineTransform=dddddd}"; };
template <> struct Encoding<NSRange> { static constexpr FixedString text = "{_NSRange=QQ}"; };
}  // namespace bridge
// clang-format on
