// SPDX-License-Identifier: MIT
#include "samples/pictures/picture.h"

#include <gtest/gtest.h>

namespace samples {
namespace {

// Three by two pixels, numbered in rows: 0 1 2 / 3 4 5.
Picture numbered() {
  Picture picture(3, 2);
  for (int index = 0; index < 6; ++index)
    picture.at(index % 3, index / 3).red = static_cast<float>(index);
  return picture;
}

std::string rowsOf(const Picture& picture) {
  std::string rows;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x)
      rows += static_cast<char>('0' + static_cast<int>(picture.at(x, y).red));
    rows += '/';
  }
  return rows;
}

TEST(Picture, IsStoredForEachOrientation) {
  // From the definition of the tag: which edges of the stored pixels are the top and the left of
  // the picture.
  const char* const expected[] = {"012/345/",  "210/543/",  "543/210/",  "345/012/",
                                  "03/14/25/", "25/14/03/", "52/41/30/", "30/41/52/"};
  for (int orientation = 1; orientation <= 8; ++orientation)
    EXPECT_EQ(rowsOf(storedForOrientation(numbered(), orientation)), expected[orientation - 1])
        << orientation;
}

TEST(Picture, IsReducedToMeans) {
  EXPECT_FLOAT_EQ(reduced(numbered(), 1, 1).at(0, 0).red, 2.5f);
  EXPECT_EQ(rowsOf(reduced(numbered(), 3, 2)), "012/345/");
}

TEST(Picture, BlendsOnlyInside) {
  Picture picture(2, 2);
  picture.blend(-1, 0, {1, 1, 1}, 1);
  picture.blend(2, 0, {1, 1, 1}, 1);
  picture.blend(1, 1, {1, 1, 1}, 0.25f);
  EXPECT_FLOAT_EQ(picture.at(1, 1).green, 0.25f);
  EXPECT_FLOAT_EQ(picture.at(0, 0).green, 0);
}

TEST(Gradient, MixesBetweenStops) {
  const ColorStop stops[] = {{0.2f, {0, 0, 0}}, {0.6f, {1, 1, 1}}};
  EXPECT_FLOAT_EQ(gradientColor(stops, 0).red, 0);
  EXPECT_FLOAT_EQ(gradientColor(stops, 0.4f).red, 0.5f);
  EXPECT_FLOAT_EQ(gradientColor(stops, 1).red, 1);
}

}  // namespace
}  // namespace samples
