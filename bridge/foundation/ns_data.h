// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "bridge/foundation/ns_object.h"

namespace bridge {

struct NSData : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"NSData">(); }

  static NSData make(const void* bytes, std::size_t length) {
    return send<NSData, "dataWithBytes:length:">(classObject(), bytes, NSUInteger{length});
  }

  NSUInteger length() const { return send<NSUInteger, "length">(*this); }
  const void* bytes() const { return send<const void*, "bytes">(*this); }
  // The bytes, borrowed from the object.
  std::string_view view() const { return {static_cast<const char*>(bytes()), length()}; }
};

struct NSDate : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"NSDate">(); }

  // Seconds since 1970-01-01 00:00:00 UTC.
  static NSDate withTimeIntervalSince1970(double seconds) {
    return send<NSDate, "dateWithTimeIntervalSince1970:">(classObject(), seconds);
  }
  double timeIntervalSince1970() const { return send<double, "timeIntervalSince1970">(*this); }
};

}  // namespace bridge
