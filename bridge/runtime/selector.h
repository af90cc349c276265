// SPDX-License-Identifier: MIT
//
// Selectors: registered once for each name, compared by name.
#pragma once

#include "bridge/runtime/fixed_string.h"
#include "bridge/runtime/objc.h"

namespace bridge {

// The selector of this name, registered when first asked for.
template <FixedString Name>
SEL selector() {
  static const SEL registered = sel_registerName(Name.text);
  return registered;
}

// Whether two selectors have one name. Equal names can be different pointers: a runtime may keep
// one for each type encoding. Null is the same as null only.
inline bool sameSelector(SEL left, SEL right) {
  if (!left || !right) return left == right;
  return sel_isEqual(left, right) != 0;
}

}  // namespace bridge
