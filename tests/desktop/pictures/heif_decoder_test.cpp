// SPDX-License-Identifier: MIT
#include "desktop/pictures/decoders/heif_decoder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "media/image/heif/heif_meta.h"
#include "samples/formats/heic_file.h"
#include "samples/metadata/icc_profile.h"
#include "tests/desktop/pictures/test_files.h"

namespace desktop::pictures {

namespace {

using samples::Bytes;

// Overwrites the coded bytes of all items of a file but its thumbnail, or of the thumbnail only.
enum class Damage { picture, thumbnail };
Bytes damaged(const Bytes& file, Damage damage) {
  io::MemorySource source(file);
  io::SourceReader reader(source);
  auto meta = media::image::HeifMeta::read(reader);
  if (!meta) return {};
  std::set<std::uint32_t> thumbnails;
  for (const auto& reference : meta->references()) {
    if (reference.type == model::fourCharCode("thmb")) thumbnails.insert(reference.from);
  }
  Bytes result = file;
  for (const auto& item : meta->items()) {
    const bool isThumbnail = thumbnails.contains(item.id);
    if (item.type != model::fourCharCode("hvc1") || isThumbnail != (damage == Damage::thumbnail))
      continue;
    auto pieces = meta->bytesOf(item.id);
    const auto coded = pieces.all(reader);
    if (!coded) return {};
    const auto place = std::ranges::search(result, coded->bytes());
    std::fill(place.begin(), place.end(), std::uint8_t{0});
  }
  return result;
}

std::string shown(const Bytes& bytes, const Request& request) {
  io::MemorySource source(bytes);
  const auto picture = decodeHeif(source, request);
  return picture ? quarters(*picture) : "none";
}

TEST(HeifDecoder, ReadsTheThumbnailOnlyWhereItIsLargeEnough) {
  const auto file = samples::phoneHeicFile(quartered(1024, 768), {});
  ASSERT_TRUE(file) << file.error().reason;
  const Bytes withoutPicture = damaged(*file, Damage::picture);
  constexpr const char* right = "red green blue white";
  using enum Request::Fit;
  EXPECT_EQ(shown(withoutPicture, {320, 240, fit}), right);
  EXPECT_EQ(shown(withoutPicture, {200, 240, fill}), right);
  EXPECT_NE(shown(withoutPicture, {321, 241, fit}), right);
  EXPECT_EQ(shown(*file, {321, 241, fit}), right);
}

TEST(HeifDecoder, LeavesAThumbnailOfAnotherAspect) {
  // Thumbnails are 320 by 240 here, whatever the picture.
  const auto file = samples::phoneHeicFile(quartered(1024, 512), {});
  ASSERT_TRUE(file) << file.error().reason;
  const Request request{100, 100, Request::Fit::fit};
  EXPECT_EQ(shown(damaged(*file, Damage::thumbnail), request), "red green blue white");
}

TEST(HeifDecoder, TurnsAThumbnailLikeItsPicture) {
  const auto upright = quartered(768, 1024);
  for (const int orientation : {3, 6, 8}) {
    const auto stored = samples::storedForOrientation(upright, orientation);
    const auto file = samples::phoneHeicFile(stored, {.orientation = orientation});
    ASSERT_TRUE(file) << file.error().reason;
    io::MemorySource source(*file);
    const auto picture = decodeHeif(source, {120, 120, Request::Fit::fit});
    ASSERT_TRUE(picture) << orientation;
    if (orientation != 3) {
      EXPECT_EQ(picture->width, 90) << orientation;
    }
    EXPECT_EQ(quarters(*picture), "red green blue white") << orientation;
  }
}

// An Exif block that states an orientation and nothing else.
Bytes exifOf(int orientation) {
  samples::ByteWriter block;
  block.text("MM");
  block.u16(42);
  block.u32(8);
  block.u16(1);
  for (const int part : {0x0112, 3}) block.u16(part);
  block.u32(1);
  block.u16(orientation);
  block.zeros(6);
  return block.take();
}

TEST(HeifDecoder, ExifTurnsWhatDoesNotTurnItself) {
  const auto upright = quartered(768, 1024);
  const samples::Bytes exif = exifOf(6);
  const auto stored = samples::storedForOrientation(upright, 6);
  const auto plain = samples::computerHeicFile(stored, {.exif = exif});
  ASSERT_TRUE(plain) << plain.error().reason;
  EXPECT_EQ(shown(*plain, {120, 160, Request::Fit::fit}), "red green blue white");
  const auto turned = samples::phoneHeicFile(stored, {.orientation = 6, .exif = exifOf(3)});
  ASSERT_TRUE(turned) << turned.error().reason;
  EXPECT_EQ(shown(*turned, {120, 160, Request::Fit::fit}), "red green blue white");
}

TEST(HeifDecoder, ConvertsWideGamutToSrgb) {
  samples::Picture plain(64, 64);
  samples::forEachPixel(plain, [](samples::Rgb& pixel, float, float) {
    pixel = {0.5F, 0.7F, 0.3F};
  });
  const auto file = samples::phoneHeicFile(
      plain, {.profile = samples::iccProfile(samples::ColorSpace::displayP3)});
  ASSERT_TRUE(file) << file.error().reason;
  io::MemorySource source(*file);
  const auto picture = decodeHeif(source, {8, 8, Request::Fit::fit});
  ASSERT_TRUE(picture);
  const std::uint32_t pixel = picture->pixels[9];
  EXPECT_NEAR(pixel >> 16 & 0xFF, 112, 8);
  EXPECT_NEAR(pixel >> 8 & 0xFF, 180, 8);
  EXPECT_NEAR(pixel & 0xFF, 57, 8);
}

TEST(HeifDecoder, FailsWithAReason) {
  for (const Bytes& bytes :
       {Bytes{}, Bytes(100, 0),
        Bytes{0, 0, 0, 16, 'f', 't', 'y', 'p', 'h', 'e', 'i', 'c', 0, 0, 0, 0}}) {
    io::MemorySource source(bytes);
    const auto picture = decodeHeif(source, {8, 8, Request::Fit::fit});
    ASSERT_FALSE(picture);
    EXPECT_NE(picture.error().reason, "");
  }
}

}  // namespace

}  // namespace desktop::pictures
