// SPDX-License-Identifier: MIT
#include "bridge/runtime/encoding.h"

#include <gtest/gtest.h>

#include "bridge/block.h"
#include "tests/bridge/victims.h"

namespace bridge {
namespace {

// The compiler can ask, so a wrong encoding need not be found at run time.
static_assert(encodingOf<id(id, SEL)> == "@@:");
static_assert(encodingOf<void(id, SEL, id)> == "v@:@");
static_assert(encodingOf<void(id, SEL)> == "v@:");

TEST(Encoding, FollowsTheSignature) {
  EXPECT_EQ((encodingOf<void(id, SEL, BOOL)>), sizeof(BOOL) == 1 ? "v@:C" : "");
  EXPECT_EQ((encodingOf<void(id, SEL, bool)>), (encodingOf<void(id, SEL, BOOL)>));
  EXPECT_EQ((encodingOf<Object(id, SEL, Object)>), "@@:@");
  EXPECT_EQ((encodingOf<Class(id, SEL, SEL)>), "#@::");
  EXPECT_EQ((encodingOf<int(id, SEL, unsigned, short, float, double)>), "i@:Isfd");
  EXPECT_EQ((encodingOf<void(id, SEL, id*, void*, char*, const char*)>), "v@:^@^v*r*");
  EXPECT_EQ((encodingOf<victims::Rect(id, SEL, victims::Rect)>), "{Rect=dddd}@:{Rect=dddd}");
  EXPECT_EQ((encodingOf<void(id, SEL, Block<void(bool)>)>), "v@:@?");
}

TEST(Encoding, OfLongIntegersIsThatOf64Bits) {
  EXPECT_EQ((encodingOf<long(id, SEL, unsigned long)>), "q@:Q");
}

}  // namespace
}  // namespace bridge
