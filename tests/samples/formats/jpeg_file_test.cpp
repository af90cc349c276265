// SPDX-License-Identifier: MIT
#include "samples/formats/jpeg_file.h"

#include <gtest/gtest.h>

namespace samples {
namespace {

// The markers up to the coded picture.
Bytes markersOf(const Bytes& file) {
  Bytes markers;
  for (std::size_t at = 2; at + 4 <= file.size() && file[at + 1] != 0xDA;
       at += 2 + file[at + 2] * std::size_t{256} + file[at + 3])
    markers.push_back(file[at + 1]);
  return markers;
}

TEST(JpegFile, OfAPhoneBeginsWithItsExifSegment) {
  const Bytes file = jpegFile(Picture(16, 16), {}, {{1, exifSegment({'M', 'M'})}});
  EXPECT_EQ(markersOf(file).front(), 0xE1);
  EXPECT_EQ(std::string(file.begin() + 6, file.begin() + 10), "Exif");
}

TEST(JpegFile, OfAComputerBeginsWithJfifAndItsDensity) {
  const Bytes file = jpegFile(Picture(16, 16), {.jfif = true, .density = 300}, {{1, {}}});
  EXPECT_EQ(markersOf(file).front(), 0xE0);
  EXPECT_EQ(Bytes(file.begin() + 13, file.begin() + 18), (Bytes{1, 0x01, 0x2C, 0x01, 0x2C}));
}

TEST(JpegFile, IsProgressiveWhereAsked) {
  const Bytes markers = markersOf(jpegFile(Picture(16, 16), {.progressive = true}, {}));
  EXPECT_NE(std::find(markers.begin(), markers.end(), 0xC2), markers.end());
}

}  // namespace
}  // namespace samples
