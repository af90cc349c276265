// SPDX-License-Identifier: MIT
//
// Sizes, dates and patterns as the platform words and matches them.
#pragma once

#include "bridge/foundation/ns_data.h"
#include "bridge/foundation/ns_string.h"

namespace bridge {

struct NSByteCountFormatter : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"NSByteCountFormatter">(); }

  enum CountStyle : NSInteger { fileStyle = 0 };

  static NSString string(long long byteCount, CountStyle style) {
    return send<NSString, "stringFromByteCount:countStyle:">(classObject(), byteCount,
                                                             NSInteger{style});
  }

  NSInteger countStyle() const { return send<NSInteger, "countStyle">(*this); }
};

struct NSDateFormatter : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"NSDateFormatter">(); }

  enum Style : NSUInteger { noStyle = 0, shortStyle = 1, mediumStyle = 2 };

  // In the user's locale and time zone; nil for no date.
  static NSString localizedString(NSDate date, Style dateStyle, Style timeStyle) {
    return send<NSString, "localizedStringFromDate:dateStyle:timeStyle:">(
        classObject(), date, NSUInteger{dateStyle}, NSUInteger{timeStyle});
  }

  void setDateStyle(Style style) const { send<void, "setDateStyle:">(*this, NSUInteger{style}); }
  void setTimeStyle(Style style) const { send<void, "setTimeStyle:">(*this, NSUInteger{style}); }
  NSString string(NSDate date) const { return send<NSString, "stringFromDate:">(*this, date); }
  NSUInteger dateStyle() const { return send<NSUInteger, "dateStyle">(*this); }
  NSUInteger timeStyle() const { return send<NSUInteger, "timeStyle">(*this); }
};

struct NSRegularExpression : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"NSRegularExpression">(); }

  enum Options : NSUInteger { caseInsensitive = 1 };

  // Nil where the pattern does not compile. The reason is not asked for.
  static NSRegularExpression withPattern(NSString pattern, Options options) {
    return send<NSRegularExpression, "regularExpressionWithPattern:options:error:">(
        classObject(), pattern, NSUInteger{options}, static_cast<id*>(nullptr));
  }
  // Every match in the whole text replaced; $2 in the template is the second group.
  NSString replaceMatches(NSString text, NSString replacement) const {
    return send<NSString, "stringByReplacingMatchesInString:options:range:withTemplate:">(
        *this, text, NSUInteger{0}, NSRange{0, text.length()}, replacement);
  }
};

}  // namespace bridge
