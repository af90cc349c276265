// SPDX-License-Identifier: MIT
#include "samples/pictures/scenes.h"

#include <gtest/gtest.h>

#include <cmath>

namespace samples {
namespace {

constexpr int sceneCount = static_cast<int>(Scene::weatherScreen) + 1;

Scene sceneAt(int index) {
  return static_cast<Scene>(index);
}

TEST(Scenes, ArePaintedTheSameEachTime) {
  for (int index = 0; index < sceneCount; ++index)
    EXPECT_EQ(rgbBytes(paintScene(sceneAt(index), 64, 48)),
              rgbBytes(paintScene(sceneAt(index), 64, 48)))
        << index;
}

TEST(Scenes, DifferFromEachOtherAndAreNotPlain) {
  std::vector<std::vector<std::uint8_t>> pictures;
  for (int index = 0; index < sceneCount; ++index) {
    const Picture picture = paintScene(sceneAt(index), 64, 48);
    float darkest = 1;
    float brightest = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        darkest = std::min(darkest, luminance(picture.at(x, y)));
        brightest = std::max(brightest, luminance(picture.at(x, y)));
      }
    }
    EXPECT_GT(brightest - darkest, 0.2f) << index;
    pictures.push_back(rgbBytes(picture));
    for (std::size_t other = 0; other + 1 < pictures.size(); ++other)
      EXPECT_NE(pictures[other], pictures.back()) << index << " and " << other;
  }
}

TEST(Scenes, ArePaintedAtAnySize) {
  for (int index = 0; index < sceneCount; ++index) {
    for (const auto& [width, height] : {std::pair{1, 1}, {200, 3}, {3, 90}}) {
      const Picture picture = paintScene(sceneAt(index), width, height);
      EXPECT_TRUE(std::isfinite(luminance(picture.at(width - 1, height - 1)))) << index;
    }
  }
}

}  // namespace
}  // namespace samples
