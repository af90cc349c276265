// SPDX-License-Identifier: MIT
#pragma once

#include "bridge/foundation/ns_string.h"

namespace bridge {

struct NSNumber : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"NSNumber">(); }

  static NSNumber withBool(bool value) {
    return send<NSNumber, "numberWithBool:">(classObject(), value);
  }
  static NSNumber withInt(int value) {
    return send<NSNumber, "numberWithInt:">(classObject(), value);
  }
  static NSNumber withLongLong(long long value) {
    return send<NSNumber, "numberWithLongLong:">(classObject(), value);
  }
  static NSNumber withUnsignedLongLong(unsigned long long value) {
    return send<NSNumber, "numberWithUnsignedLongLong:">(classObject(), value);
  }
  static NSNumber withDouble(double value) {
    return send<NSNumber, "numberWithDouble:">(classObject(), value);
  }

  // The number as the type, as the platform converts it.
  bool boolValue() const { return send<bool, "boolValue">(*this); }
  int intValue() const { return send<int, "intValue">(*this); }
  long long longLongValue() const { return send<long long, "longLongValue">(*this); }
  unsigned long long unsignedLongLongValue() const {
    return send<unsigned long long, "unsignedLongLongValue">(*this);
  }
  float floatValue() const { return send<float, "floatValue">(*this); }
  double doubleValue() const { return send<double, "doubleValue">(*this); }
  NSString stringValue() const { return send<NSString, "stringValue">(*this); }
  // The encoding of the C type that it was made from.
  const char* objCType() const { return send<const char*, "objCType">(*this); }
};

// The null object, which stands for nothing inside collections.
struct NSNull : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"NSNull">(); }
  static NSNull null() { return send<NSNull, "null">(classObject()); }
};

}  // namespace bridge
