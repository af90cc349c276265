// SPDX-License-Identifier: MIT
#include "desktop/pictures/pixels/orientation.h"

#include <gmock/gmock.h>

namespace desktop::pictures {

namespace {

// Stored: 1 2 3
//         4 5 6
TEST(Orientation, TurnsAndMirrorsAsTheStandardSays) {
  struct Case {
    std::int64_t number;
    int width;
    std::vector<std::uint32_t> shown;
  };
  const Case cases[] = {
      {1, 3, {1, 2, 3, 4, 5, 6}}, {2, 3, {3, 2, 1, 6, 5, 4}}, {3, 3, {6, 5, 4, 3, 2, 1}},
      {4, 3, {4, 5, 6, 1, 2, 3}}, {5, 2, {1, 4, 2, 5, 3, 6}}, {6, 2, {4, 1, 5, 2, 6, 3}},
      {7, 2, {6, 3, 5, 2, 4, 1}}, {8, 2, {3, 6, 2, 5, 1, 4}}, {0, 3, {1, 2, 3, 4, 5, 6}},
      {9, 3, {1, 2, 3, 4, 5, 6}}, {-6, 3, {1, 2, 3, 4, 5, 6}}};
  for (const Case& each : cases) {
    const Picture shown = Orientation(each.number).upright({3, 2, {1, 2, 3, 4, 5, 6}});
    EXPECT_EQ(shown.width, each.width) << each.number;
    EXPECT_EQ(shown.height, 6 / each.width) << each.number;
    EXPECT_EQ(shown.pixels, each.shown) << each.number;
  }
}

TEST(Orientation, SwapsSidesOfSizes) {
  EXPECT_EQ(Orientation(6).turned({4, 3}), (PixelSize{3, 4}));
  EXPECT_EQ(Orientation(3).turned({4, 3}), (PixelSize{4, 3}));
}

}  // namespace

}  // namespace desktop::pictures
