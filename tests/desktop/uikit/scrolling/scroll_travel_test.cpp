// SPDX-License-Identifier: MIT
#include "desktop/uikit/scrolling/scroll_travel.h"

#include <gtest/gtest.h>

namespace desktop::uikit {
namespace {

TEST(ScrollTravel, TakesAsLongAsTheLongerOfItsWays) {
  const auto travel = ScrollTravel::coasting({}, {100, 1000}, {-1e4, -1e4}, {1e4, 1e4}, true);
  EXPECT_TRUE(travel.isCoasting);
  EXPECT_GT(travel.y.duration(), travel.x.duration());
  EXPECT_EQ(travel.duration(), travel.y.duration());
  EXPECT_EQ(travel.at(travel.duration()), travel.end());
}

TEST(ScrollTravel, KeepsToItsLimitsWhereItDoesNotBounce) {
  const auto travel = ScrollTravel::coasting({}, {-900, 900}, {0, 0}, {50, 50}, false);
  EXPECT_EQ(travel.end(), (CGPoint{0, 50}));
}

TEST(ScrollTravel, ACommandIsNoFinger) {
  const auto travel = ScrollTravel::easing({10, 20}, {30, 0}, 0.3);
  EXPECT_FALSE(travel.isCoasting);
  EXPECT_EQ(travel.duration(), 0.3);
  EXPECT_EQ(travel.at(0), (CGPoint{10, 20}));
  EXPECT_EQ(travel.at(0.15), (CGPoint{20, 10}));
  EXPECT_EQ(travel.end(), (CGPoint{30, 0}));
}

TEST(ScrollTravel, SpringsToAPlaceAfterAFinger) {
  const auto travel = ScrollTravel::springing({10, 0}, {}, {0, 0});
  EXPECT_TRUE(travel.isCoasting);
  EXPECT_EQ(travel.end(), CGPoint{});
  EXPECT_GT(travel.duration(), 0);
  EXPECT_EQ(ScrollTravel::springing({4, 4}, {}, {4, 4}).duration(), 0);
}

}  // namespace
}  // namespace desktop::uikit
