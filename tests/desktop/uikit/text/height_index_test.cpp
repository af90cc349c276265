// SPDX-License-Identifier: MIT
#include "desktop/uikit/text/height_index.h"

#include <gtest/gtest.h>

#include <numeric>
#include <random>

namespace desktop::uikit {
namespace {

// The thing at a height, found one by one.
std::size_t plainAt(const std::vector<double>& heights, double height) {
  double sum = 0;
  for (std::size_t index = 0; index < heights.size(); ++index) {
    sum += heights[index];
    if (sum > height) return index;
  }
  return heights.size() - 1;
}

TEST(HeightIndex, AgreesWithAddingUp) {
  std::mt19937 random(7);
  for (const std::size_t count : {1u, 2u, 3u, 7u, 8u, 100u}) {
    std::vector<double> heights(count);
    for (double& height : heights) height = static_cast<double>(random() % 4);
    HeightIndex index(heights);
    for (int round = 0; round < 200; ++round) {
      const std::size_t changed = random() % count;
      const double by = static_cast<double>(random() % 3);
      heights[changed] += by;
      index.grow(changed, by);
      const std::size_t asked = random() % (count + 1);
      const auto end = heights.begin() + static_cast<std::ptrdiff_t>(asked);
      EXPECT_EQ(index.before(asked), std::accumulate(heights.begin(), end, 0.0));
      const double height = static_cast<double>(random() % 500) / 2 - 5;
      EXPECT_EQ(index.at(height), plainAt(heights, height)) << count << " " << height;
    }
    EXPECT_EQ(index.total(), std::accumulate(heights.begin(), heights.end(), 0.0));
  }
}

TEST(HeightIndex, NothingIsNoHeight) {
  EXPECT_EQ(HeightIndex().total(), 0);
  EXPECT_EQ(HeightIndex().before(0), 0);
}

}  // namespace
}  // namespace desktop::uikit
