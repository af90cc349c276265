// SPDX-License-Identifier: MIT
#include "media/image/other/psd_container.h"

#include <gtest/gtest.h>

#include "tests/media/image/container_builder.h"

namespace media::image {
namespace {

using namespace std::string_literals;

struct PsdToWrite {
  int version = 1;
  int mode = 3;
  int depth = 8;
  std::uint32_t width = 640;
  std::string resources = {};
  int layers = 0;  // below zero with transparency
};

std::string psdFile(const PsdToWrite& psd) {
  const auto number = [](int value, int bytes) {
    return bigEndian(static_cast<std::uint64_t>(value), bytes);
  };
  const int wide = psd.version == 2 ? 8 : 4;
  return "8BPS" + number(psd.version, 2) + std::string(6, '\0') + number(4, 2) + number(480, 4) +
         bigEndian(psd.width, 4) + number(psd.depth, 2) + number(psd.mode, 2) + number(0, 4) +
         bigEndian(psd.resources.size(), 4) + psd.resources + number(40, wide) +
         number(psd.layers == 0 ? 0 : 20, wide) + number(psd.layers, 2) + std::string(40, '\0');
}

TEST(PsdContainer, readsTheHeader) {
  EXPECT_EQ(propertiesOf(psdFile({})),
            (model::Dictionary{
                {"ColorModel", "RGB"}, {"Depth", 8}, {"PixelHeight", 480}, {"PixelWidth", 640}}));
}

TEST(PsdContainer, theModeIsTheColourModel) {
  const std::pair<int, const char*> cases[] = {{0, "Gray"}, {1, "Gray"}, {2, "RGB"}, {3, "RGB"},
                                               {4, "CMYK"}, {8, "Gray"}, {9, "Lab"}};
  for (const auto& [mode, name] : cases) {
    EXPECT_EQ(*entry(propertiesOf(psdFile({.mode = mode})), "", "ColorModel"), name);
  }
  EXPECT_FALSE(entry(propertiesOf(psdFile({.mode = 7})), "", "ColorModel"));
  EXPECT_EQ(*entry(propertiesOf(psdFile({.mode = 2})), "", "IsIndexed"), true);
  EXPECT_EQ(*entry(propertiesOf(psdFile({.depth = 32})), "", "IsFloat"), true);
}

TEST(PsdContainer, readsTheBlocksAmongItsResources) {
  const std::string resources =
      photoshopResource(1005, bigEndian(300 << 16, 4) + bigEndian(0x00010001, 4) +
                                  bigEndian(150 << 16, 4) + bigEndian(0x00010001, 4)) +
      photoshopResource(1028, iptcDataset(2, 120, "a caption")) +
      photoshopResource(1039, iccProfile("Display P3")) +
      photoshopResource(1058, exifBlock("Maker", 6)) +
      photoshopResource(1060, xmpPacket("<photoshop:City>Kingston</photoshop:City>"));
  for (const int version : {1, 2}) {
    const auto properties = propertiesOf(psdFile({.version = version, .resources = resources}));
    EXPECT_EQ(*entry(properties, "", "DPIWidth"), 300.0);
    EXPECT_EQ(*entry(properties, "", "DPIHeight"), 150.0);
    EXPECT_EQ(*entry(properties, "", "ProfileName"), "Display P3");
    EXPECT_EQ(*entry(properties, "", "Orientation"), 6);
    EXPECT_EQ(*entry(properties, "{TIFF}", "Make"), "Maker");
    EXPECT_EQ(*entry(properties, "{IPTC}", "Caption/Abstract"), "a caption");
    EXPECT_EQ(*entry(properties, "{IPTC}", "City"), "Kingston");
  }
}

TEST(PsdContainer, transparencyIsACountOfLayersBelowZero) {
  for (const int version : {1, 2}) {
    const auto hasAlpha = [&](int layers) {
      return entry(propertiesOf(psdFile({.version = version, .layers = layers})), "", "HasAlpha");
    };
    EXPECT_EQ(hasAlpha(-3) != nullptr, true);
    EXPECT_EQ(hasAlpha(3) != nullptr, false);
    EXPECT_EQ(hasAlpha(0) != nullptr, false);
  }
}

TEST(PsdContainer, saysWhyThereIsNoSize) {
  EXPECT_EQ(errorOf(psdFile({}).substr(0, 20)), "truncated PSD");
  EXPECT_EQ(errorOf(psdFile({.width = 0})), "damaged PSD");
  EXPECT_EQ(errorOf(psdFile({.version = 3})), "none");
}

}  // namespace
}  // namespace media::image
