// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/grid/edge_scrolling.h"

#include <gtest/gtest.h>

namespace desktop::photos_ui {
namespace {

TEST(EdgeSpeed, GrowsTowardsTheEdgesAndIsNothingBetween) {
  const struct {
    CGFloat y;
    CGFloat speed;
  } fingers[] = {{-50, -900}, {0, -900},  {30, -450}, {60, 0},   {300, 0},
                 {540, 0},    {570, 450}, {600, 900}, {700, 900}};
  for (const auto& [y, speed] : fingers) EXPECT_EQ(edgeSpeed(y, 600), speed) << y;
}

TEST(EdgeSpeed, LeavesTheMiddleOfALowRoomAlone) {
  EXPECT_EQ(edgeSpeed(45, 90), 0);
  EXPECT_EQ(edgeSpeed(15, 90), -450);
  EXPECT_EQ(edgeSpeed(5, 0), 0);
}

}  // namespace
}  // namespace desktop::photos_ui
