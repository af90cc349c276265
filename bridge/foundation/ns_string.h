// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "bridge/foundation/ns_object.h"

namespace bridge {

struct NSData;

// Lengths and indices are in UTF-16 units.
struct NSString : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"NSString">(); }

  // The text, which may hold zeros. Autoreleased; nil where it is not valid UTF-8.
  static NSString make(std::string_view utf8);
  // The bytes read as UTF-8; nil where they are none.
  static Owned<NSString> makeOfUtf8(NSData data);

  // The text as UTF-8: empty for nil, U+FFFD or '?' for what has no form in it.
  std::string utf8() const;

  NSUInteger length() const { return send<NSUInteger, "length">(*this); }
  bool isEqualToString(NSString other) const {
    return send<bool, "isEqualToString:">(*this, other);
  }
  bool hasPrefix(NSString prefix) const { return send<bool, "hasPrefix:">(*this, prefix); }
  // REQUIRES: index <= length().
  NSString substringFrom(NSUInteger index) const {
    return send<NSString, "substringFromIndex:">(*this, index);
  }
  // REQUIRES: end is not nil.
  NSString appending(NSString end) const {
    return send<NSString, "stringByAppendingString:">(*this, end);
  }
  int intValue() const { return send<int, "intValue">(*this); }
  NSInteger localizedCaseInsensitiveCompare(NSString other) const {
    return send<NSInteger, "localizedCaseInsensitiveCompare:">(*this, other);
  }
  NSString uppercased() const { return send<NSString, "uppercaseString">(*this); }
  // REQUIRES: the range lies within it.
  NSString substring(NSRange range) const {
    return send<NSString, "substringWithRange:">(*this, range);
  }
  // The range, and what else belongs to its first and last characters as they are seen.
  NSRange wholeCharacters(NSRange range) const {
    return send<NSRange, "rangeOfComposedCharacterSequencesForRange:">(*this, range);
  }
  void getCharacters(char16_t* into, NSRange range) const {
    send<void, "getCharacters:range:">(*this, reinterpret_cast<unsigned short*>(into), range);
  }
};

inline NSString NSObject::description() const {
  return send<NSString, "description">(*this);
}

// A copy that never changes; +1.
inline Owned<NSString> copy(NSString text) {
  return Owned<NSString>::adopt(send<NSString, "copy">(text));
}

// What "%@" prints of an object, nil included.
inline NSString printed(Object object) {
  return object ? NSObject(object.get()).description() : NSString::make("(null)");
}

}  // namespace bridge
