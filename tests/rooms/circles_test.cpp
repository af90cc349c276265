// SPDX-License-Identifier: MIT
#include "tests/rooms/circles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace rooms {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

TEST(Circles, AreNotFoundInATree) {
  EXPECT_THAT(edgesInCircles({{"a", {"b", "c"}}, {"b", {"d"}}, {"c", {"d"}}}), IsEmpty());
}

TEST(Circles, ConsistOfTheEdgesThatLeadBack) {
  EXPECT_THAT(edgesInCircles({{"a", {"b"}}, {"b", {"c", "x"}}, {"c", {"a"}}, {"y", {"a"}}}),
              ElementsAre(Pair("a", "b"), Pair("b", "c"), Pair("c", "a")));
}

TEST(Circles, AreNotMadeByANodeThatNamesItself) {
  EXPECT_THAT(edgesInCircles({{"a", {"a"}}}), IsEmpty());
}

}  // namespace
}  // namespace rooms
