// SPDX-License-Identifier: MIT
#include "desktop/pictures/pixels/row_scaler.h"

#include <gmock/gmock.h>

#include <random>

namespace desktop::pictures {

namespace {

Picture scaled(PixelSize source, PixelSize target, const std::vector<std::uint32_t>& pixels) {
  RowScaler scaler(source, target);
  const auto width = static_cast<std::size_t>(source.width);
  for (std::size_t row = 0; row < static_cast<std::size_t>(source.height); ++row)
    scaler.addRow(std::span(pixels).subspan(row * width, width));
  return scaler.take();
}

TEST(RowScaler, TakesTheMeanOfWholePixels) {
  const Picture picture = scaled({4, 2}, {2, 1},
                                 {0xFF000000, 0xFF0000FF, 0xFFFFFFFF, 0xFFFFFFFF,  //
                                  0xFF000000, 0xFF0000FF, 0xFFFFFFFF, 0xFFFFFFFF});
  EXPECT_THAT(picture.pixels, testing::ElementsAre(0xFF000080, 0xFFFFFFFF));
}

TEST(RowScaler, SharesPixelsThatLieInTwo) {
  // Three pixels become two: the one in the middle belongs to both in halves.
  const Picture picture = scaled({3, 1}, {2, 1}, {0xFF000000, 0xFF0000FF, 0xFF000000});
  EXPECT_THAT(picture.pixels, testing::ElementsAre(0xFF000055, 0xFF000055));
}

TEST(RowScaler, CopiesWhatHasItsSizeAlready) {
  const std::vector<std::uint32_t> pixels = {0x80400000, 0x01010101, 0xFF123456, 0};
  EXPECT_EQ(scaled({2, 2}, {2, 2}, pixels).pixels, pixels);
}

TEST(RowScaler, KeepsAnEvenColourExactly) {
  constexpr std::pair<PixelSize, PixelSize> cases[] = {
      {{7, 5}, {3, 2}}, {{1000, 3}, {7, 2}}, {{65'535, 2}, {1, 1}}, {{1, 999}, {1, 998}}};
  for (const auto& [source, target] : cases) {
    const std::size_t count =
        static_cast<std::size_t>(source.width) * static_cast<std::size_t>(source.height);
    const Picture picture = scaled(source, target, std::vector(count, 0xFFFE7F01u));
    EXPECT_THAT(picture.pixels, testing::Each(0xFFFE7F01u))
        << source.width << " to " << target.width;
  }
}

// Beside the plain definition: the integral over the area of each target pixel.
std::uint32_t meanOf(PixelSize source, const std::vector<std::uint32_t>& pixels, PixelSize target,
                     int column, int row, int shift) {
  const double xScale = static_cast<double>(source.width) / target.width;
  const double yScale = static_cast<double>(source.height) / target.height;
  const auto overlap = [](int at, double begin, double end) {
    return std::max(0.0, std::min(at + 1.0, end) - std::max<double>(at, begin));
  };
  double sum = 0;
  for (int y = 0; y < source.height; ++y) {
    for (int x = 0; x < source.width; ++x) {
      const double share = overlap(x, column * xScale, (column + 1) * xScale) *
                           overlap(y, row * yScale, (row + 1) * yScale);
      sum += share * (pixels[static_cast<std::size_t>(y * source.width + x)] >> shift & 0xFF);
    }
  }
  return static_cast<std::uint32_t>(sum / (xScale * yScale) + 0.5);
}

TEST(RowScaler, AgreesWithTheDefinitionForAnySizes) {
  constexpr unsigned seed = 20'240'611;
  std::mt19937 random(seed);
  const auto upTo = [&](int most) {
    return static_cast<int>(random() % static_cast<unsigned>(most)) + 1;
  };
  for (int round = 0; round < 40; ++round) {
    const PixelSize source{upTo(40), upTo(40)};
    const PixelSize target{upTo(source.width), upTo(source.height)};
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(source.width * source.height));
    for (auto& pixel : pixels) pixel = static_cast<std::uint32_t>(random());
    const Picture picture = scaled(source, target, pixels);
    for (int at = 0; at < target.width * target.height; ++at) {
      for (const int shift : {0, 8, 16, 24}) {
        const auto expected =
            meanOf(source, pixels, target, at % target.width, at / target.width, shift);
        const auto found = picture.pixels[static_cast<std::size_t>(at)] >> shift & 0xFF;
        ASSERT_NEAR(found, expected, 2)
            << "seed " << seed << " round " << round << ": " << source.width << "x" << source.height
            << " to " << target.width << "x" << target.height;
      }
    }
  }
}

TEST(RowScaler, LeavesWhatNoRowCameForTransparent) {
  RowScaler scaler({2, 4}, {1, 2});
  const std::vector<std::uint32_t> row(2, 0xFFFFFFFF);
  scaler.addRow(row);
  scaler.addRow(row);
  EXPECT_THAT(scaler.take().pixels, testing::ElementsAre(0xFFFFFFFF, 0));
}

TEST(RowScaler, IgnoresRowsBehindTheLast) {
  RowScaler scaler({1, 1}, {1, 1});
  const std::vector<std::uint32_t> row(1, 0xFF112233);
  for (int count = 0; count < 3; ++count) scaler.addRow(row);
  EXPECT_THAT(scaler.take().pixels, testing::ElementsAre(0xFF112233));
}

}  // namespace

}  // namespace desktop::pictures
