// SPDX-License-Identifier: MIT
#include "desktop/pictures/pixels/target_size.h"

#include <gtest/gtest.h>

#include <limits>

#include "desktop/pictures/pixels/limits.h"

namespace desktop::pictures {

namespace {

constexpr int anySize = std::numeric_limits<int>::max();

TEST(TargetSize, CoversOrLiesInTheBox) {
  struct Case {
    PixelSize image;
    Request request;
    PixelSize expected;
  };
  using enum Request::Fit;
  constexpr Case cases[] = {
      {{4000, 3000}, {400, 400, fit}, {400, 300}},
      {{4000, 3000}, {400, 400, fill}, {533, 400}},
      {{3000, 4000}, {400, 400, fit}, {300, 400}},
      {{3000, 4000}, {400, 400, fill}, {400, 533}},
      {{100, 80}, {400, 400, fit}, {100, 80}},  // never larger than the image
      {{100, 80}, {90, 400, fill}, {100, 80}},  // not even on one side
      {{16384, 1000}, {300, 300, fill}, {4915, 300}},
      {{16384, 10}, {300, 300, fit}, {300, 1}},  // never without pixels
      {{4032, 3024}, {anySize, anySize, fit}, {4032, 3024}},
  };
  for (const Case& each : cases) {
    const PixelSize size = targetSize(each.image, each.request);
    EXPECT_EQ(size, each.expected) << each.image.width << " x " << each.image.height << ": "
                                   << size.width << " x " << size.height;
  }
}

TEST(TargetSize, StaysWithinTheLimitOfMemory) {
  const PixelSize size = targetSize({65'000, 65'000}, {anySize, anySize, Request::Fit::fit});
  EXPECT_EQ(size.width, size.height);
  const auto bytes =
      static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height) * 4;
  EXPECT_LE(bytes, limits.pictureBytes);
  EXPECT_GT(bytes, limits.pictureBytes * 9 / 10);
}

TEST(HasSameAspect, AllowsForWholePixelsOnly) {
  EXPECT_TRUE(hasSameAspect({160, 120}, {4032, 3024}));
  EXPECT_TRUE(hasSameAspect({160, 107}, {6000, 4000}));
  EXPECT_FALSE(hasSameAspect({160, 120}, {6000, 4000})) << "padded with black bars";
  EXPECT_FALSE(hasSameAspect({160, 120}, {3024, 4032})) << "turned";
}

}  // namespace

}  // namespace desktop::pictures
