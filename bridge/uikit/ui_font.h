// SPDX-License-Identifier: MIT
//
// Fonts, and the size of text in them.
#pragma once

#include "bridge/foundation/ns_collections.h"

#pragma GCC visibility push(default)
extern "C" {
// The name of the attribute that holds a text's font. A host without UIKit has no such variable:
// its address is then null.
extern __attribute__((weak)) id NSFontAttributeName;
}
#pragma GCC visibility pop

namespace bridge {

// Sizes are in points.
struct UIFont : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"UIFont">(); }

  static UIFont systemFont(CGFloat size) {
    return send<UIFont, "systemFontOfSize:">(classObject(), size);
  }

  CGFloat pointSize() const { return send<CGFloat, "pointSize">(*this); }
  CGFloat lineHeight() const { return send<CGFloat, "lineHeight">(*this); }
  CGFloat ascender() const { return send<CGFloat, "ascender">(*this); }
  // Below the baseline, so negative.
  CGFloat descender() const { return send<CGFloat, "descender">(*this); }
};

// The size that the text takes when it is drawn with the attributes, in points, unrounded.
// REQUIRES: the host has UIKit.
inline CGSize sizeWithAttributes(NSString text, NSDictionary attributes) {
  return send<CGSize, "sizeWithAttributes:">(text, attributes);
}

}  // namespace bridge
