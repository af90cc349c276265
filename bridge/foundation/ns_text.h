// SPDX-License-Identifier: MIT
#pragma once

#include "bridge/foundation/ns_collections.h"

namespace bridge {

// Text with fonts and paragraph styles over ranges of it.
struct NSAttributedString : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"NSAttributedString">(); }

  NSUInteger length() const { return send<NSUInteger, "length">(*this); }
  NSString string() const { return send<NSString, "string">(*this); }
  // REQUIRES: index < length(). Nil where there is none; null for the range where it does not
  // matter.
  Object attribute(NSString name, NSUInteger index, NSRange* range) const {
    return send<Object, "attribute:atIndex:effectiveRange:">(*this, name, index, range);
  }
  NSDictionary attributesAt(NSUInteger index, NSRange* range) const {
    return send<NSDictionary, "attributesAtIndex:effectiveRange:">(*this, index, range);
  }
};

// A copy that never changes; +1.
inline Owned<NSAttributedString> copy(NSAttributedString text) {
  return Owned<NSAttributedString>::adopt(send<NSAttributedString, "copy">(text));
}

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
