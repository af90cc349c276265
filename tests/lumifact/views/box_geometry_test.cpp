// SPDX-License-Identifier: MIT
#include "lumifact/views/box_geometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace lumifact {
namespace {

struct InitialCase {
  CGSize overlay;
  CGRect box;
};

TEST(BoxGeometry, BeginsAsASquareInTheMiddle) {
  constexpr InitialCase cases[] = {
      {{375, 667}, {{27.5, 173.5}, {320, 320}}}, {{300, 200}, {{5, 20}, {290, 160}}},
      {{330, 360}, {{5, 20}, {320, 320}}},  // as high as wide: both limits at once
      {{200, 667}, {{5, 238.5}, {190, 190}}},    {{0, 0}, {{5, 20}, {-10, -40}}},  // no room at all
      {{-20, -20}, {{5, 20}, {-30, -60}}},
  };
  for (const auto& [overlay, box] : cases)
    EXPECT_EQ(initialBox(overlay), box) << overlay.width << " x " << overlay.height;
}

TEST(BoxGeometry, FitsItsTextAndStaysInTheMiddle) {
  EXPECT_EQ(fittedBox({375, 667}, 120, {320, 48}), (CGRect{{127.5, 309.5}, {120, 48}}));
  EXPECT_EQ(fittedBox({375, 667}, 330, {320, 48}), (CGRect{{27.5, 309.5}, {320, 48}}));
}

TEST(BoxGeometry, IsAsHighAsItsTextHoweverHigh) {
  EXPECT_EQ(fittedBox({375, 667}, 320, {320, 5000}), (CGRect{{27.5, -2166.5}, {320, 5000}}));
}

TEST(BoxGeometry, CastsAShadowThatReachesFurther) {
  EXPECT_EQ(shadowOf({120, 48}), (CGRect{{0, 0}, {125, 53}}));
}

TEST(BoxGeometry, TakesWhatIsNoNumber) {
  const CGRect box = initialBox({std::nan(""), std::numeric_limits<double>::infinity()});
  EXPECT_TRUE(std::isnan(box.origin.x));
}

}  // namespace
}  // namespace lumifact
