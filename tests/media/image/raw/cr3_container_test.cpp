// SPDX-License-Identifier: MIT
#include "media/image/raw/cr3_container.h"

#include <gtest/gtest.h>

#include "tests/media/image/container_builder.h"
#include "tests/media/image/raw/raw_builder.h"

namespace media::image {
namespace {

std::string tiffOf(const std::vector<FieldToWrite>& fields) {
  return std::string(asText(buildTiff(io::ByteOrder::little, {fields})));
}

Cr3ToWrite sample() {
  return {.first = tiffOf({shorts(0x0100, {6000}), shorts(0x0101, {4000}),
                           shorts(0x0102, {8, 8, 8}), ascii(0x010F, "Canon"), shorts(0x0112, {8}),
                           rationals(0x011A, {{72, 1}}), rationals(0x011B, {{72, 1}})}),
          .exif = tiffOf({shorts(0x8827, {12800}), ascii(0xA434, "EF-M15-45mm")}),
          .maker = tiffOf({ascii(0x0007, "Firmware Version 1.0.0"), longs(0x000C, {3012345678})}),
          .gps = tiffOf({ascii(1, "N")}),
          .xmp = xmpPacket("<photoshop:City>Kingston</photoshop:City>"),
          .tracks = {{1624, 8}, {6288, 14}, {160, 10}}};
}

TEST(Cr3Container, readsItsDirectoriesAndTheLargestTrack) {
  const auto properties = propertiesOf(cr3File(sample()));
  EXPECT_EQ(*entry(properties, "", "PixelWidth"), 6000);
  EXPECT_EQ(*entry(properties, "", "PixelHeight"), 4000);
  EXPECT_EQ(*entry(properties, "", "ColorModel"), "RGB");
  EXPECT_EQ(*entry(properties, "", "Depth"), 14);
  EXPECT_EQ(*entry(properties, "", "Orientation"), 8);
  EXPECT_EQ(*entry(properties, "", "DPIHeight"), 72.0);
  EXPECT_EQ(*entry(properties, "{TIFF}", "Make"), "Canon");
  EXPECT_EQ(*entry(properties, "{Exif}", "ISOSpeedRatings"), (model::Array{12800}));
  EXPECT_EQ(*entry(properties, "{Exif}", "LensModel"), "EF-M15-45mm");
  EXPECT_EQ(*entry(properties, "{ExifAux}", "Firmware"), "Firmware Version 1.0.0");
  EXPECT_EQ(*entry(properties, "{ExifAux}", "SerialNumber"), "3012345678");
  EXPECT_EQ(*entry(properties, "{GPS}", "LatitudeRef"), "N");
  EXPECT_EQ(*entry(properties, "{IPTC}", "City"), "Kingston");
}

TEST(Cr3Container, withoutACodedTrackTheDepthIsNotKnown) {
  Cr3ToWrite cr3 = sample();
  cr3.tracks = {};
  EXPECT_FALSE(entry(propertiesOf(cr3File(cr3)), "", "Depth"));
}

TEST(Cr3Container, filmsOfTheSameBrandAreNone) {
  Cr3ToWrite film = sample();
  film.version = "CanonCRM0001/02.09.00/00.00.00";
  EXPECT_EQ(errorOf(cr3File(film)), "none");
}

TEST(Cr3Container, saysWhyThereIsNoSize) {
  Cr3ToWrite cr3 = sample();
  EXPECT_EQ(errorOf(cr3File(cr3).substr(0, 150)), "truncated CR3");
  cr3.first = "no directory";
  EXPECT_EQ(errorOf(cr3File(cr3)), "damaged CR3");
}

}  // namespace
}  // namespace media::image
