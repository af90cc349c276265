// SPDX-License-Identifier: MIT
#include "media/image/raw/rw2_container.h"

#include <gtest/gtest.h>

#include "tests/media/image/container_builder.h"
#include "tests/media/image/raw/raw_builder.h"

namespace media::image {
namespace {

std::vector<FieldToWrite> sensor(std::vector<FieldToWrite> more = {}) {
  more.insert(more.end(), {shorts(4, {6}), shorts(5, {8}), shorts(6, {2742}), shorts(7, {3656}),
                           shorts(10, {12}), shorts(0x0017, {80})});
  return more;
}

TEST(Rw2Container, theSensorsBordersAreTheSize) {
  const auto properties = propertiesOf(rw2File(sensor(), ""));
  EXPECT_EQ(*entry(properties, "", "PixelWidth"), 3648);
  EXPECT_EQ(*entry(properties, "", "PixelHeight"), 2736);
  EXPECT_EQ(*entry(properties, "", "ColorModel"), "RGB");
  EXPECT_EQ(*entry(properties, "", "Depth"), 12);
  EXPECT_EQ(*entry(properties, "{Exif}", "ISOSpeedRatings"), (model::Array{80}));
}

TEST(Rw2Container, lowTagsMeanSomethingElseThanInTiff) {
  const auto properties = propertiesOf(
      rw2File(sensor({shorts(0x0103, {5}), shorts(0x0106, {2}), ascii(0x010E, "no description"),
                      ascii(0x010F, "Panasonic"), ascii(0x0110, "DMC-LX3"), shorts(0x0112, {8}),
                      rationals(0x011A, {{3, 7}}), rationals(0x011B, {{3, 7}})}),
              ""));
  EXPECT_EQ(*model::find(properties, "{TIFF}"),
            model::Value(model::Dictionary{
                {"Make", "Panasonic"}, {"Model", "DMC-LX3"}, {"Orientation", 8}}));
  EXPECT_FALSE(entry(properties, "", "DPIWidth"));
}

TEST(Rw2Container, itsOwnWordsGoBeforeThoseOfTheJpeg) {
  const auto properties = propertiesOf(rw2File(sensor({ascii(0x010F, "Panasonic")}), innerJpeg()));
  EXPECT_EQ(*entry(properties, "{TIFF}", "Make"), "Panasonic");
  EXPECT_EQ(*entry(properties, "{TIFF}", "XResolution"), 72.0);
  EXPECT_EQ(*entry(properties, "{Exif}", "ISOSpeedRatings"), (model::Array{200}));
  EXPECT_EQ(*entry(properties, "", "PixelWidth"), 3648);
  EXPECT_EQ(*entry(properties, "", "DPIWidth"), 72.0);
}

TEST(Rw2Container, aSpeedThatDoesNotFitIsNotShown) {
  auto fields = sensor();
  fields.back() = shorts(0x0017, {65535});
  EXPECT_FALSE(entry(propertiesOf(rw2File(fields, "")), "", "{Exif}"));
}

TEST(Rw2Container, aJpegOutsideTheFileSaysNothing) {
  auto fields = sensor();
  FieldToWrite jpeg = undefined(0x002E, "some bytes");
  jpeg.claimedOffset = 0xFFFFFFF0;
  fields.push_back(jpeg);
  EXPECT_EQ(*entry(propertiesOf(rw2File(fields, "")), "", "Depth"), 12);
  fields.back().claimedOffset = 0;  // the file itself
  EXPECT_FALSE(entry(propertiesOf(rw2File(fields, "")), "", "{TIFF}"));
}

TEST(Rw2Container, saysWhyThereIsNoSize) {
  EXPECT_EQ(errorOf(rw2File({}, "")), "damaged RW2");
  EXPECT_EQ(errorOf(rw2File(sensor(), "").substr(0, 9)), "truncated RW2");
  auto inverted = sensor();
  inverted[3] = shorts(7, {4});
  EXPECT_EQ(errorOf(rw2File(inverted, "")), "damaged RW2");
}

}  // namespace
}  // namespace media::image
