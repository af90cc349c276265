// SPDX-License-Identifier: MIT
#pragma once

#include "bridge/foundation/ns_string.h"

namespace bridge {

// Text with fonts and paragraph styles over ranges of it.
struct NSAttributedString : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"NSAttributedString">(); }

  NSUInteger length() const { return send<NSUInteger, "length">(*this); }
};

struct NSMutableAttributedString : NSAttributedString {
  using NSAttributedString::NSAttributedString;
  static Class classObject() { return classNamed<"NSMutableAttributedString">(); }

  static Owned<NSMutableAttributedString> withString(NSString text) {
    return makeWith<NSMutableAttributedString, "initWithString:">(classObject(), text);
  }

  void addAttribute(NSString name, Object value, NSRange range) const {
    send<void, "addAttribute:value:range:">(*this, name, value, range);
  }
};

}  // namespace bridge
