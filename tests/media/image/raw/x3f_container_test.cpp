// SPDX-License-Identifier: MIT
#include "media/image/raw/x3f_container.h"

#include <gtest/gtest.h>

#include "tests/media/image/container_builder.h"
#include "tests/media/image/raw/raw_builder.h"

namespace media::image {
namespace {

X3fSection propertyList() {
  return {"PROP", x3fProperties({{"CAMMANUF", "SIGMA"},
                                 {"CAMMODEL", "SIGMA SD10"},
                                 {"ISO", "100"},
                                 {"TIME", "978309395"},
                                 {"SHUTTER", "0.00929"},
                                 {"APERTURE", "8.35419"},
                                 {"PMODE", "P"},
                                 {"EXPCOMP", "-0.5"},
                                 {"FLENGTH", "30"},
                                 {"FLEQ35MM", "51"},
                                 {"CAMSERIAL", "02001234"},
                                 {"DRIVE", "SINGLE"}})};
}

TEST(X3fContainer, readsTheListOfProperties) {
  const auto properties = propertiesOf(x3fFile(2, 2268, 1512, 90, {propertyList()}));
  EXPECT_EQ(properties,
            (model::Dictionary{
                {"ColorModel", "RGB"},
                {"Orientation", 6},
                {"PixelHeight", 1512},
                {"PixelWidth", 2268},
                {"{Exif}", model::Dictionary{{"BodySerialNumber", "02001234"},
                                             {"DateTimeOriginal", "2001:01:01 00:36:35"},
                                             {"ExposureBiasValue", -0.5},
                                             {"ExposureProgram", 2},
                                             {"ExposureTime", 0.00929},
                                             {"FNumber", 8.35419},
                                             {"FocalLenIn35mmFilm", 51},
                                             {"FocalLength", 30.0},
                                             {"ISOSpeedRatings", model::Array{100}}}},
                {"{TIFF}", model::Dictionary{
                               {"Make", "SIGMA"}, {"Model", "SIGMA SD10"}, {"Orientation", 6}}}}));
}

TEST(X3fContainer, theJpegGoesBeforeTheList) {
  const X3fSection jpeg{"IMA2", std::string(28, '\0') + innerJpeg()};
  const auto properties = propertiesOf(x3fFile(2, 2268, 1512, 90, {propertyList(), jpeg}));
  EXPECT_EQ(*entry(properties, "{TIFF}", "Make"), "Maker");
  EXPECT_EQ(*entry(properties, "{TIFF}", "Model"), "SIGMA SD10");
  EXPECT_EQ(*entry(properties, "{Exif}", "ISOSpeedRatings"), (model::Array{200}));
  EXPECT_EQ(*entry(properties, "", "PixelWidth"), 2268);
}

TEST(X3fContainer, theFourthVersionHasItsSizeElsewhere) {
  const auto properties = propertiesOf(x3fFile(4, 5440, 3616, 180, {}));
  EXPECT_EQ(*entry(properties, "", "PixelWidth"), 5440);
  EXPECT_EQ(*entry(properties, "", "Orientation"), 3);
}

TEST(X3fContainer, textsThatAreNoNumbersAreNotShown) {
  const X3fSection list{"PROP", x3fProperties({{"ISO", "-"},
                                               {"SHUTTER", "bulb"},
                                               {"TIME", "0"},
                                               {"PMODE", "PP"},
                                               {"APERTURE", ""},
                                               {"FLEQ35MM", "-5"}})};
  EXPECT_FALSE(entry(propertiesOf(x3fFile(2, 8, 6, 0, {list})), "", "{Exif}"));
}

TEST(X3fContainer, aListWhoseTextsLieOutsideSaysNothing) {
  X3fSection list = propertyList();
  list.bytes.resize(24 + 8 * 12);
  EXPECT_FALSE(entry(propertiesOf(x3fFile(2, 8, 6, 0, {list})), "", "{Exif}"));
}

TEST(X3fContainer, saysWhyThereIsNoSize) {
  EXPECT_EQ(errorOf(x3fFile(2, 8, 6, 0, {}).substr(0, 40)), "truncated X3F");
  EXPECT_EQ(errorOf(x3fFile(2, 0, 6, 0, {})), "damaged X3F");
}

}  // namespace
}  // namespace media::image
