// SPDX-License-Identifier: MIT
#include "desktop/pictures/decoders/heif_tiles.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "samples/formats/heic_file.h"
#include "samples/formats/jpeg_file.h"
#include "samples/pictures/scenes.h"
#include "tests/desktop/pictures/test_files.h"

namespace desktop::pictures {

namespace {

using samples::Bytes;

// How far a decoded picture is from the one that was painted: the mean over all channels, 0 to 255.
double distance(const Picture& decoded, const samples::Picture& painted) {
  const auto expected = samples::rgbBytes(samples::reduced(painted, decoded.width, decoded.height));
  double sum = 0;
  for (std::size_t at = 0; at < decoded.pixels.size(); ++at) {
    for (std::size_t channel = 0; channel < 3; ++channel) {
      const auto value = static_cast<int>(decoded.pixels[at] >> (16 - 8 * channel) & 0xFF);
      sum += std::abs(value - expected[3 * at + channel]);
    }
  }
  return sum / static_cast<double>(expected.size());
}

class HeifTilesTest : public testing::Test {
 protected:
  const samples::Picture painted = samples::paintScene(samples::Scene::fjord, 1200, 900);
};

TEST_F(HeifTilesTest, PutTheGridOfAPhoneTogether) {
  const auto file = samples::phoneHeicFile(painted, {});
  ASSERT_TRUE(file) << file.error().reason;
  for (const PixelSize target : {PixelSize{1200, 900}, {400, 300}, {41, 31}}) {
    io::MemorySource source(*file);
    const auto picture = decodeHeifTiles(source, {1200, 900}, target);
    ASSERT_TRUE(picture) << target.width;
    EXPECT_EQ(picture->width, target.width);
    EXPECT_LT(distance(*picture, painted), 3) << target.width;
    EXPECT_TRUE(
        std::ranges::all_of(picture->pixels, [](auto pixel) { return pixel >> 24 == 255; }));
  }
}

TEST_F(HeifTilesTest, DecodeASinglePicture) {
  const auto file = samples::computerHeicFile(painted, {});
  ASSERT_TRUE(file) << file.error().reason;
  io::MemorySource source(*file);
  const auto picture = decodeHeifTiles(source, {1200, 900}, {300, 225});
  ASSERT_TRUE(picture);
  EXPECT_LT(distance(*picture, painted), 3);
}

TEST_F(HeifTilesTest, AreTurned) {
  for (const int orientation : {3, 6, 8}) {
    const auto stored = samples::storedForOrientation(painted, orientation);
    const auto file = samples::phoneHeicFile(stored, {.orientation = orientation});
    ASSERT_TRUE(file) << file.error().reason;
    io::MemorySource source(*file);
    const auto picture = decodeHeifTiles(source, {1200, 900}, {200, 150});
    ASSERT_TRUE(picture) << orientation;
    EXPECT_LT(distance(*picture, painted), 3) << orientation;
  }
}

TEST_F(HeifTilesTest, HandOverWhatTheyDoNotKnow) {
  const auto file = samples::phoneHeicFile(painted, {});
  ASSERT_TRUE(file) << file.error().reason;
  io::MemorySource other(*file);
  EXPECT_FALSE(decodeHeifTiles(other, {900, 1200}, {90, 120})) << "of another size";
  io::MemorySource jpeg(samples::jpegFile(quartered(16, 16), {}, {}));
  EXPECT_FALSE(decodeHeifTiles(jpeg, {16, 16}, {16, 16}));
  Bytes cut(file->begin(), file->begin() + static_cast<std::ptrdiff_t>(file->size() / 2));
  io::MemorySource source(cut);
  EXPECT_FALSE(decodeHeifTiles(source, {1200, 900}, {120, 90})) << "cut off";
}

// Each byte of the boxes before the coded pictures, damaged in turn.
TEST_F(HeifTilesTest, TakeDamagedBoxes) {
  const auto file = samples::phoneHeicFile(quartered(64, 48), {});
  ASSERT_TRUE(file) << file.error().reason;
  for (std::size_t at = 0; at < std::min<std::size_t>(file->size(), 1500); ++at) {
    Bytes damaged = *file;
    damaged[at] = static_cast<std::uint8_t>(damaged[at] + 1 + at % 254);
    io::MemorySource source(damaged);
    const auto picture = decodeHeifTiles(source, {64, 48}, {32, 24});
    if (picture) {
      EXPECT_EQ(picture->pixels.size(), 32U * 24U) << at;
    }
  }
}

}  // namespace

}  // namespace desktop::pictures
