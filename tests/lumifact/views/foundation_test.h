// SPDX-License-Identifier: MIT
//
// The phone's Foundation for every test, in one locale and time zone.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>

#include "bridge/convert.h"
#include "bridge/foundation.h"
#include "desktop/faces/foundation/foundation_runtime.h"

namespace lumifact {

inline void useThePhonesFoundation() {
  static const bool used = [] {
    setenv("LC_ALL", "en_US.UTF-8", 1);
    setenv("TZ", "Europe/Berlin", 1);
    desktop::faces::correctFoundation({});
    return true;
  }();
  static_cast<void>(used);
}

class FoundationTest : public testing::Test {
 protected:
  FoundationTest() { useThePhonesFoundation(); }

 private:
  const bridge::AutoreleasePool _pool;
};

inline bridge::NSString text(std::string_view utf8) {
  return bridge::NSString::make(utf8);
}

// A tree as platform objects; autoreleased.
inline bridge::Object objects(const model::Value& value) {
  return bridge::toObject(value).autorelease();
}

}  // namespace lumifact
