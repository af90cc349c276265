// SPDX-License-Identifier: MIT
#include "media/image/raw/raf_container.h"

#include <gtest/gtest.h>

#include "tests/media/image/container_builder.h"
#include "tests/media/image/raw/raw_builder.h"

namespace media::image {
namespace {

using namespace std::string_literals;

TEST(RafContainer, hasTheMetadataOfItsJpegAndNoneOfItsPixels) {
  const auto properties = propertiesOf(rafFile({}));
  EXPECT_EQ(*entry(properties, "", "PixelWidth"), 4256);
  EXPECT_EQ(*entry(properties, "", "PixelHeight"), 2848);
  EXPECT_EQ(*entry(properties, "", "ColorModel"), "RGB");
  EXPECT_EQ(*entry(properties, "", "Orientation"), 6);
  EXPECT_EQ(*entry(properties, "", "DPIWidth"), 72.0);
  EXPECT_EQ(*entry(properties, "{TIFF}", "Make"), "Maker");
  EXPECT_EQ(*entry(properties, "{Exif}", "ISOSpeedRatings"), (model::Array{200}));
  EXPECT_FALSE(entry(properties, "", "{JFIF}"));
  EXPECT_FALSE(entry(properties, "", "Depth"));
}

TEST(RafContainer, theLargerSizeIsThePictures) {
  const auto properties =
      propertiesOf(rafFile({.jpeg = innerJpeg(1920, 1280), .width = 6000, .height = 4000}));
  EXPECT_EQ(*entry(properties, "", "PixelWidth"), 6000);
  EXPECT_EQ(*entry(properties, "", "PixelHeight"), 4000);
}

TEST(RafContainer, theShapeOfTheJpegTellsSharedAndTurnedRows) {
  struct Case {
    int width;
    int height;
    model::Value picture[2];
  };
  const Case cases[] = {
      {4256, 1424, {4256, 2848}}, {2128, 2848, {4256, 2848}}, {8512, 1424, {4256, 2848}},
      {2128, 5696, {4256, 2848}}, {4000, 4000, {4000, 4000}},
  };
  for (const Case& each : cases) {
    const auto properties = propertiesOf(
        rafFile({.jpeg = innerJpeg(1440, 960), .width = each.width, .height = each.height}));
    EXPECT_EQ(*entry(properties, "", "PixelWidth"), each.picture[0]) << each.width;
    EXPECT_EQ(*entry(properties, "", "PixelHeight"), each.picture[1]) << each.width;
  }
}

TEST(RafContainer, theSensorsDataSayTheDepth) {
  const Bytes sensor =
      buildTiff(io::ByteOrder::little, {{pointerTo(0xF000, 1)}, {longs(0xF003, {14})}});
  EXPECT_EQ(*entry(propertiesOf(rafFile({.sensor = std::string(asText(sensor))})), "", "Depth"),
            14);
}

TEST(RafContainer, aJpegThatIsNoneSaysNothing) {
  for (const std::string& jpeg : {""s, "no JPEG"s, "\xFF\xD8\xFF"s, innerJpeg().substr(0, 40)}) {
    const auto properties = propertiesOf(rafFile({.jpeg = jpeg, .width = 800, .height = 600}));
    EXPECT_EQ(*entry(properties, "", "PixelWidth"), 800);
    EXPECT_FALSE(entry(properties, "", "{Exif}"));
  }
  std::string itself = rafFile({.width = 800, .height = 600});
  itself.replace(0x54, 8, bigEndian(0, 4) + bigEndian(itself.size(), 4));
  EXPECT_FALSE(entry(propertiesOf(itself), "", "{Exif}"));
  itself.replace(0x54, 8, bigEndian(0xFFFFFFFF, 4) + bigEndian(0xFFFFFFFF, 4));
  EXPECT_FALSE(entry(propertiesOf(itself), "", "{Exif}"));
}

TEST(RafContainer, saysWhyThereIsNoSize) {
  EXPECT_EQ(errorOf(rafFile({}).substr(0, 0x60)), "truncated RAF");
  EXPECT_EQ(errorOf(rafFile({.jpeg = "", .width = 0})), "damaged RAF");
}

}  // namespace
}  // namespace media::image
