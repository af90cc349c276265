// SPDX-License-Identifier: MIT
#include "desktop/uikit/scrolling/scroll_motion.h"

#include <gtest/gtest.h>

#include <cmath>

namespace desktop::uikit {
namespace {

TEST(ScrollMotion, CoastsAtThePlatformsRate) {
  const auto motion = ScrollMotion::coasting(0, 1000, {-1e6, 1e6}, true);
  // After 100 ms the velocity is 0.998 to the power of 100, of what it was.
  const double step = 1e-4;
  const double velocity = (motion.at(0.1 + step) - motion.at(0.1 - step)) / (2 * step);
  EXPECT_NEAR(velocity, 1000 * std::pow(0.998, 100), 0.01);
  EXPECT_NEAR(motion.end(), 495, 1);
  EXPECT_NEAR(motion.duration(), 2.3, 0.01);
  EXPECT_EQ(motion.at(motion.duration()), motion.end());
}

TEST(ScrollMotion, StopsAtTheLimitWhereItDoesNotBounce) {
  const auto motion = ScrollMotion::coasting(0, 1000, {0, 100}, false);
  EXPECT_EQ(motion.end(), 100);
  EXPECT_LT(motion.duration(), 0.2);
  for (double time = 0; time < 1; time += 0.01) EXPECT_LE(motion.at(time), 100 + 1e-9) << time;
}

TEST(ScrollMotion, SwingsBeyondTheLimitAndComesBackExactly) {
  const auto motion = ScrollMotion::coasting(0, -2000, {-100, 0}, true);
  double farthest = 0;
  for (double time = 0; time < motion.duration(); time += 0.01)
    farthest = std::min(farthest, motion.at(time));
  EXPECT_LT(farthest, -110);
  EXPECT_GT(farthest, -300);
  EXPECT_EQ(motion.end(), -100);
  EXPECT_EQ(motion.at(motion.duration()), -100);
}

TEST(ScrollMotion, MovesWithoutAJump) {
  const ScrollMotion motions[] = {ScrollMotion::coasting(0, 3000, {0, 400}, true),
                                  ScrollMotion::coasting(-50, 100, {0, 400}, true),
                                  ScrollMotion::springing(10, 500, 375),
                                  ScrollMotion::easing(0, 300, 0.3)};
  for (const ScrollMotion& motion : motions)
    for (double time = 0; time < motion.duration() + 0.1; time += 0.001)
      ASSERT_LT(std::abs(motion.at(time + 0.001) - motion.at(time)), 10) << time;
}

TEST(ScrollMotion, GoesBackFromBeyondTheLimit) {
  const auto motion = ScrollMotion::coasting(-50, 0, {0, 400}, true);
  EXPECT_EQ(motion.at(0), -50);
  EXPECT_EQ(motion.end(), 0);
}

TEST(ScrollMotion, StandsStillWithoutVelocity) {
  const auto motion = ScrollMotion::coasting(7, 5, {0, 400}, true);
  EXPECT_EQ(motion.duration(), 0);
  EXPECT_EQ(motion.at(0), 7);
}

TEST(ScrollMotion, TakesAnyVelocity) {
  for (const double velocity : {1e300, -1e300, HUGE_VAL, -HUGE_VAL}) {
    const auto motion = ScrollMotion::coasting(0, velocity, {-10, 10}, true);
    EXPECT_EQ(std::abs(motion.end()), 10) << velocity;
    EXPECT_LT(motion.duration(), 6) << velocity;
    EXPECT_TRUE(std::isfinite(motion.at(0.1))) << velocity;
  }
}

TEST(RubberBand, FollowsLessAndLess) {
  EXPECT_EQ(rubberBand(0, 100), 0);
  EXPECT_NEAR(rubberBand(1, 100), 0.55, 0.01);
  EXPECT_EQ(rubberBand(-20, 100), -rubberBand(20, 100));
  EXPECT_LT(rubberBand(1e9, 100), 100.0001);
  EXPECT_EQ(rubberBand(50, 0), 0);
}

}  // namespace
}  // namespace desktop::uikit
