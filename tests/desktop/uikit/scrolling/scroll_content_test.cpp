// SPDX-License-Identifier: MIT
#include "desktop/uikit/scrolling/scroll_content.h"

#include <gtest/gtest.h>

#include <cmath>

namespace desktop::uikit {
namespace {

constexpr CGSize room = {100, 100};

ScrollContent highContent() {
  return {.size = {100, 300},
          .inset = {.top = 10, .bottom = 5},
          .safeArea = {.top = 20, .left = 1, .bottom = 30, .right = 2}};
}

TEST(ScrollContent, TheSafeAreaCountsUnlessItNeverDoes) {
  ScrollContent content = highContent();
  EXPECT_EQ(content.adjustedInset(), (EdgeInsets{30, 1, 35, 2}));
  EXPECT_EQ(content.whole(), (CGSize{103, 365}));
  content.adjustment = ScrollContent::never;
  EXPECT_EQ(content.adjustedInset(), (EdgeInsets{10, 0, 5, 0}));
  EXPECT_EQ(content.whole(), (CGSize{100, 315}));
}

TEST(ScrollContent, AnOffsetIsClampedToContentAndInsets) {
  const ScrollContent content = highContent();
  struct Offset {
    CGPoint given;
    CGPoint inside;
  };
  for (const auto& [given, inside] :
       {Offset{{0, 50}, {0, 50}}, Offset{{-9, -90}, {-1, -30}}, Offset{{9, 900}, {2, 235}},
        Offset{{-HUGE_VAL, HUGE_VAL}, {-1, 235}}})
    EXPECT_EQ(content.clamped(given, room), inside) << given.x << ", " << given.y;
}

TEST(ScrollContent, ContentSmallerThanItsRoomStaysAtTheTop) {
  const ScrollContent content{.size = {50, 20}, .inset = {.top = 10}};
  for (const CGFloat y : {-50.0, 0.0, 70.0})
    EXPECT_EQ(content.clamped({0, y}, room), (CGPoint{0, -10})) << y;
}

TEST(ScrollContent, IsPulledBeyondItsEndsLessAndLess) {
  const ScrollContent content{.size = {100, 300}};
  EXPECT_EQ(content.pulledTo({0, 150}, room, true), (CGPoint{0, 150}));
  const CGFloat little = content.pulledTo({0, -10}, room, true).y;
  const CGFloat much = content.pulledTo({0, -100}, room, true).y;
  EXPECT_LT(little, 0);
  EXPECT_GT(little, -10);
  EXPECT_GT(much, 10 * little);
  EXPECT_GT(content.pulledTo({0, 250}, room, true).y, 200);
  EXPECT_EQ(content.pulledTo({0, 250}, room, false), (CGPoint{0, 200}));
}

}  // namespace
}  // namespace desktop::uikit
