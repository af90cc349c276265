// SPDX-License-Identifier: MIT
#include "desktop/faces/movie/media_time.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace desktop::faces {
namespace {

TEST(MediaTimeTest, isTheSimplestFraction) {
  const struct {
    double seconds;
    std::int64_t value;
    std::int32_t timescale;
  } cases[] = {
      {0, 0, 1},
      {12, 12, 1},
      {0.5, 1, 2},
      {1.0 / 30, 1, 30},
      {1001.0 / 30000, 1001, 30000},
      {90090.0 / 30000, 3003, 1000},
      {-2.25, -9, 4},
      {1234567.0 / 44100, 1234567, 44100},
  };
  for (const auto& row : cases) {
    const CMTime time = timeOfSeconds(row.seconds);
    EXPECT_EQ(time.value, row.value) << row.seconds;
    EXPECT_EQ(time.timescale, row.timescale) << row.seconds;
    EXPECT_EQ(time.flags, 1U) << row.seconds;
  }
}

TEST(MediaTimeTest, secondsOfAFractionComeBackTheSame) {
  constexpr unsigned seed = 20180930;
  std::mt19937_64 random(seed);
  for (int round = 0; round < 100'000; ++round) {
    const auto timescale = static_cast<double>(random() % 100'000 + 1);
    const auto value = static_cast<double>(random() % 1'000'000'000);
    const double seconds = value / timescale;
    ASSERT_EQ(CMTimeGetSeconds(timeOfSeconds(seconds)), seconds)
        << value << " / " << timescale << ", seed " << seed;
  }
}

TEST(MediaTimeTest, whatIsNoFractionIsNear) {
  for (const double seconds : {3.14159265358979, 1e-9, 123456.789012345678, 1e-300, 3.9e9 + 0.1}) {
    EXPECT_NEAR(CMTimeGetSeconds(timeOfSeconds(seconds)), seconds, 1e-9 + seconds * 1e-12);
  }
}

TEST(MediaTimeTest, invalidAndInfiniteTimesStaySo) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  EXPECT_TRUE(std::isnan(CMTimeGetSeconds(timeOfSeconds(std::nan("")))));
  EXPECT_TRUE(std::isnan(CMTimeGetSeconds({})));
  EXPECT_EQ(CMTimeGetSeconds(timeOfSeconds(infinity)), infinity);
  EXPECT_EQ(CMTimeGetSeconds(timeOfSeconds(-infinity)), -infinity);
  EXPECT_EQ(CMTimeGetSeconds(timeOfSeconds(1e300)), infinity);
}

}  // namespace
}  // namespace desktop::faces
