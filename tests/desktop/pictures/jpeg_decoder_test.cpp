// SPDX-License-Identifier: MIT
#include "desktop/pictures/decoders/jpeg_decoder.h"

#include <gmock/gmock.h>

// clang-format off
#include <cstdio>
#include <jpeglib.h>
// clang-format on

#include <cstdlib>

#include "desktop/pictures/pixels/limits.h"
#include "samples/formats/jpeg_file.h"
#include "samples/metadata/camera_exif.h"
#include "samples/metadata/icc_profile.h"
#include "tests/desktop/pictures/test_files.h"

namespace desktop::pictures {

namespace {

using samples::Bytes;

samples::Picture plain(int width, int height, samples::Rgb colour) {
  samples::Picture picture(width, height);
  samples::forEachPixel(picture, [&](samples::Rgb& pixel, float, float) { pixel = colour; });
  return picture;
}

constexpr samples::Rgb blue{0, 0, 1};
constexpr samples::Rgb white{1, 1, 1};

// A white photo with a thumbnail in its Exif block, which may be no image at all.
Bytes photoWith(int width, int height, const Bytes& thumbnail, int orientation = 1) {
  samples::Directory image;
  image.addShort(0x0112, {orientation});
  const Bytes block =
      samples::tiffBlock(samples::ByteOrder::big, {image, samples::thumbnailDirectory(thumbnail)});
  return samples::jpegFile(plain(width, height, white), {}, {{1, samples::exifSegment(block)}});
}

Bytes thumbnail(int width, int height) {
  return samples::jpegFile(plain(width, height, blue), {}, {});
}

std::string colourOf(const Bytes& bytes, const Request& request) {
  io::MemorySource source(bytes);
  const auto picture = decodeJpeg(source, request);
  return picture ? colourAt(*picture, 0.5, 0.5) : picture.error().reason;
}

TEST(JpegDecoder, UsesAThumbnailThatIsLargeEnough) {
  const Bytes photo = photoWith(1600, 1200, thumbnail(160, 120));
  using enum Request::Fit;
  EXPECT_EQ(colourOf(photo, {100, 100, fit}), "blue");
  EXPECT_EQ(colourOf(photo, {160, 120, fit}), "blue");
  EXPECT_EQ(colourOf(photo, {120, 120, fill}), "blue");
  EXPECT_EQ(colourOf(photo, {161, 121, fit}), "white");
  EXPECT_EQ(colourOf(photo, {160, 160, fill}), "white");
}

TEST(JpegDecoder, ScalesAThumbnailToTheSizeAskedFor) {
  io::MemorySource source(photoWith(1600, 1200, thumbnail(160, 120), 6));
  const auto picture = decodeJpeg(source, {90, 90, Request::Fit::fit});
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->width, 68);
  EXPECT_EQ(picture->height, 90);
}

TEST(JpegDecoder, LeavesThumbnailsOfAnotherAspect) {
  EXPECT_EQ(colourOf(photoWith(1500, 1000, thumbnail(160, 120)), {50, 50, Request::Fit::fit}),
            "white");
  EXPECT_EQ(colourOf(photoWith(1200, 1600, thumbnail(160, 120)), {50, 50, Request::Fit::fit}),
            "white");
}

TEST(JpegDecoder, LeavesThumbnailsThatAreNoImages) {
  Bytes cut = thumbnail(160, 120);
  cut.resize(40);
  for (const Bytes& each : {Bytes{}, Bytes{0xFF, 0xD8, 0xFF}, Bytes(100, 7), cut})
    EXPECT_EQ(colourOf(photoWith(1600, 1200, each), {50, 50, Request::Fit::fit}), "white");
}

TEST(JpegDecoder, ReadsNoMoreThanItNeedsForAThumbnail) {
  samples::Picture noise(1600, 1200);
  unsigned state = 1;
  samples::forEachPixel(noise, [&](samples::Rgb& pixel, float, float) {
    state = state * 1'664'525 + 1'013'904'223;
    pixel = samples::hexColor(state >> 8);
  });
  const Bytes block =
      samples::tiffBlock(samples::ByteOrder::big,
                         {samples::Directory(), samples::thumbnailDirectory(thumbnail(160, 120))});
  const Bytes photo = samples::jpegFile(noise, {}, {{1, samples::exifSegment(block)}});
  ASSERT_GT(photo.size(), 1'000'000U);
  io::MemorySource source(photo);
  ASSERT_TRUE(decodeJpeg(source, {100, 100, Request::Fit::fit}));
  EXPECT_LT(source.bytesRead(), 200'000U);
}

// Writes a new size into the frame header.
Bytes withSize(Bytes bytes, unsigned width, unsigned height) {
  for (std::size_t at = 2; at + 9 < bytes.size(); ++at) {
    const bool isFrame = bytes[at] == 0xFF && (bytes[at + 1] == 0xC0 || bytes[at + 1] == 0xC2);
    if (!isFrame) continue;
    bytes[at + 5] = static_cast<std::uint8_t>(height >> 8);
    bytes[at + 6] = static_cast<std::uint8_t>(height);
    bytes[at + 7] = static_cast<std::uint8_t>(width >> 8);
    bytes[at + 8] = static_cast<std::uint8_t>(width);
    break;
  }
  return bytes;
}

TEST(JpegDecoder, ScalesVeryLargeImagesRowByRow) {
  constexpr std::pair<unsigned, unsigned> sizes[] = {{16'384, 4000}, {8064, 6048}, {65'500, 800}};
  for (const auto& [width, height] : sizes) {
    io::MemorySource source(
        withSize(samples::jpegFile(plain(64, 64, blue), {}, {}), width, height));
    const auto picture = decodeJpeg(source, {300, 300, Request::Fit::fit});
    ASSERT_TRUE(picture) << width;
    EXPECT_EQ(picture->width, 300) << width;
    EXPECT_EQ(picture->height, static_cast<int>((300 * height + width / 2) / width)) << width;
  }
}

TEST(JpegDecoder, RefusesWhatTheLibraryWouldHoldWholeInMemory) {
  io::MemorySource source(
      withSize(samples::jpegFile(plain(64, 64, blue), {.progressive = true}, {}), 60'000, 60'000));
  const auto picture = decodeJpeg(source, {300, 300, Request::Fit::fit});
  ASSERT_FALSE(picture);
  EXPECT_EQ(picture.error().reason, "JPEG too large");
}

TEST(JpegDecoder, ShowsWhatCameBeforeTheEndOfAFileThatIsCutOff) {
  const Bytes whole = samples::jpegFile(quartered(512, 512), {}, {});
  io::MemorySource source(
      Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(whole.size() * 3 / 5)));
  const auto picture = decodeJpeg(source, {512, 512, Request::Fit::fit});
  ASSERT_TRUE(picture);
  EXPECT_EQ(colourAt(*picture, 0.1, 0.1), "red");
}

TEST(JpegDecoder, SaysThatThereIsNoImage) {
  io::MemorySource source(Bytes{0xFF, 0xD8, 0xFF, 0xD9});
  const auto picture = decodeJpeg(source, {10, 10, Request::Fit::fit});
  ASSERT_FALSE(picture);
  EXPECT_EQ(picture.error().reason, "JPEG datastream contains no image");
}

TEST(JpegDecoder, ConvertsWideGamutToSrgb) {
  // Display P3 (0.5, 0.7, 0.3) is (0.44, 0.71, 0.22) in sRGB, both with the curve of sRGB.
  const samples::Rgb wide{0.5F, 0.7F, 0.3F};
  const Bytes bytes = samples::jpegFile(
      plain(64, 64, wide), {.quality = 100},
      {{2, samples::profileSegment(samples::iccProfile(samples::ColorSpace::displayP3))}});
  io::MemorySource source(bytes);
  const auto picture = decodeJpeg(source, {8, 8, Request::Fit::fit});
  ASSERT_TRUE(picture);
  const std::uint32_t pixel = picture->pixels.front();
  EXPECT_NEAR(pixel >> 16 & 0xFF, 112, 4);
  EXPECT_NEAR(pixel >> 8 & 0xFF, 180, 4);
  EXPECT_NEAR(pixel & 0xFF, 57, 4);
}

// A plain image of four inks, stored inverted where Adobe's marker says so.
Bytes fourInks(std::array<JSAMPLE, 4> inks, bool isMarked) {
  jpeg_compress_struct info{};
  jpeg_error_mgr errors{};
  info.err = jpeg_std_error(&errors);
  jpeg_create_compress(&info);
  unsigned char* bytes = nullptr;
  unsigned long size = 0;
  jpeg_mem_dest(&info, &bytes, &size);
  info.image_width = info.image_height = 16;
  info.input_components = 4;
  info.in_color_space = JCS_CMYK;
  jpeg_set_defaults(&info);
  info.write_Adobe_marker = isMarked ? TRUE : FALSE;
  jpeg_start_compress(&info, TRUE);
  std::vector<JSAMPLE> row;
  for (int column = 0; column < 16; ++column) {
    for (const JSAMPLE ink : inks) row.push_back(isMarked ? static_cast<JSAMPLE>(255 - ink) : ink);
  }
  JSAMPROW rows[] = {row.data()};
  for (int count = 0; count < 16; ++count) jpeg_write_scanlines(&info, rows, 1);
  jpeg_finish_compress(&info);
  jpeg_destroy_compress(&info);
  Bytes result(bytes, bytes + size);
  std::free(bytes);
  return result;
}

TEST(JpegDecoder, MixesFourInks) {
  for (const bool isMarked : {true, false}) {
    const Request request{16, 16, Request::Fit::fit};
    EXPECT_EQ(colourOf(fourInks({0, 255, 255, 0}, isMarked), request), "red") << isMarked;
    EXPECT_EQ(colourOf(fourInks({255, 0, 255, 0}, isMarked), request), "green") << isMarked;
    EXPECT_EQ(colourOf(fourInks({0, 0, 0, 255}, isMarked), request), "black") << isMarked;
    EXPECT_EQ(colourOf(fourInks({0, 0, 0, 0}, isMarked), request), "white") << isMarked;
  }
}

}  // namespace

}  // namespace desktop::pictures
