// SPDX-License-Identifier: MIT
//
// Every photo and video of the sample library, at the sizes of a grid and of a screen.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <map>

#include "desktop/pictures/decoders/decode_picture.h"
#include "media/facts/asset_facts.h"

namespace desktop::pictures {

namespace {

std::vector<std::string> sampleFiles() {
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(SAMPLE_LIBRARY)) {
    const bool isHidden = entry.path().filename().string().starts_with('.');
    if (entry.is_regular_file() && !isHidden) files.push_back(entry.path());
  }
  return files;
}

// How much the brightness varies: an empty or gray picture has none.
double spreadOf(const Picture& picture) {
  double sum = 0;
  double squares = 0;
  for (const std::uint32_t pixel : picture.pixels) {
    const double green = pixel >> 8 & 0xFF;
    sum += green;
    squares += green * green;
  }
  const auto count = static_cast<double>(picture.pixels.size());
  return squares / count - sum / count * (sum / count);
}

TEST(SampleLibrary, IsDecodedUprightAtEverySize) {
  const auto files = sampleFiles();
  ASSERT_EQ(files.size(), 37U);
  for (const std::string& path : files) {
    const auto facts = media::facts::readAssetFacts(path, foundation::DeviceRoot(SAMPLE_LIBRARY));
    ASSERT_TRUE(facts) << path;
    const double aspect =
        static_cast<double>(facts->pixelWidth) / static_cast<double>(facts->pixelHeight);
    for (const int side : {60, 120, 300, 1200}) {
      const auto picture = decodePicture(path, {side, side, Request::Fit::fill});
      ASSERT_TRUE(picture) << path << ": " << picture.error().reason;
      EXPECT_NEAR(picture->width, aspect * picture->height, 1 + aspect) << path << " at " << side;
      EXPECT_GE(std::max(picture->width, picture->height),
                std::min<int>(side, static_cast<int>(facts->pixelWidth)))
          << path;
      EXPECT_GT(spreadOf(*picture), 50) << path << " at " << side;
    }
  }
}

// Thumbnails and scaled decoding show what the whole picture shows.
TEST(SampleLibrary, LooksTheSameSmallAndLarge) {
  const auto files = sampleFiles();
  ASSERT_EQ(files.size(), 37U);
  for (const std::string& path : files) {
    const auto large = decodePicture(path, {1200, 1200, Request::Fit::fit});
    const auto small = decodePicture(path, {64, 64, Request::Fit::fit});
    ASSERT_TRUE(large && small) << path;
    double difference = 0;
    for (int y = 0; y < 8; ++y) {
      for (int x = 0; x < 8; ++x) {
        const auto mean = [&](const Picture& picture) {
          double sum = 0;
          int count = 0;
          for (int row = y * picture.height / 8; row < (y + 1) * picture.height / 8; ++row) {
            for (int column = x * picture.width / 8; column < (x + 1) * picture.width / 8;
                 ++column, ++count)
              sum += picture.pixels[static_cast<std::size_t>(row * picture.width + column)] >> 8 &
                     0xFF;
          }
          return count == 0 ? 0 : sum / count;
        };
        difference = std::max(difference, std::abs(mean(*large) - mean(*small)));
      }
    }
    EXPECT_LT(difference, 40) << path;
  }
}

}  // namespace

}  // namespace desktop::pictures
