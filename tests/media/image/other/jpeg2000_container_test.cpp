// SPDX-License-Identifier: MIT
#include "media/image/other/jpeg2000_container.h"

#include <gtest/gtest.h>

#include "media/image/blocks/metadata_blocks.h"
#include "tests/media/image/container_builder.h"

namespace media::image {
namespace {

using namespace std::string_literals;

constexpr std::string_view exifUuid = "JpgTiffExif->JP2";
const std::string xmpUuid = "\xBE\x7A\xCF\xCB\x97\xA9\x42\xE8\x9C\x71\x99\x94\x91\xE3\xAF\xAC";
const std::string iptcUuid = "\x33\xC7\xA4\xD2\xB8\x1D\x47\x23\xA0\xBA\xF1\xA3\xE0\x97\xAD\x38";

std::string imageHeader(std::uint32_t width, std::uint32_t height, int components = 3,
                        int depthCode = 7) {
  return isoBox("ihdr", bigEndian(height, 4) + bigEndian(width, 4) +
                            bigEndian(static_cast<std::uint64_t>(components), 2) +
                            bigEndian(static_cast<std::uint64_t>(depthCode), 1) + "\7\0\0"s);
}

std::string codedColor(std::uint32_t space) {
  return isoBox("colr", "\1\0\0"s + bigEndian(space, 4));
}

std::string jp2File(const std::string& header, const std::string& boxes = "") {
  return isoBox("jP  ", "\r\n\x87\n") + isoBox("ftyp", "jp2 \0\0\0\0jp2 "s) +
         isoBox("jp2h", header) + boxes + isoBox("jp2c", "coded");
}

std::string uuidBox(std::string_view uuid, const std::string& payload) {
  return isoBox("uuid", std::string(uuid) + payload);
}

TEST(Jpeg2000Container, readsTheHeaderBoxes) {
  EXPECT_EQ(propertiesOf(jp2File(imageHeader(640, 480) + codedColor(18))),
            (model::Dictionary{
                {"ColorModel", "RGB"}, {"Depth", 8}, {"PixelHeight", 480}, {"PixelWidth", 640}}));
  EXPECT_EQ(*entry(propertiesOf(jp2File(imageHeader(8, 6) + codedColor(16))), "", "ProfileName"),
            srgbProfileName);
}

TEST(Jpeg2000Container, theColourModelFollowsTheSpace) {
  const std::pair<std::uint32_t, const char*> cases[] = {
      {12, "CMYK"}, {14, "Lab"}, {16, "RGB"}, {17, "Gray"}, {18, "RGB"}};
  for (const auto& [space, name] : cases) {
    const std::string file = jp2File(imageHeader(8, 6, 4) + codedColor(space));
    EXPECT_EQ(*entry(propertiesOf(file), "", "ColorModel"), name);
  }
  EXPECT_EQ(*entry(propertiesOf(jp2File(imageHeader(8, 6, 1))), "", "ColorModel"), "Gray");
}

TEST(Jpeg2000Container, aProfileNamesItselfAndItsSpace) {
  std::string profile = iccProfile("Display P3");
  profile.replace(16, 4, "CMYK");
  const auto properties =
      propertiesOf(jp2File(imageHeader(8, 6) + isoBox("colr", "\2\0\0"s + profile)));
  EXPECT_EQ(*entry(properties, "", "ProfileName"), "Display P3");
  EXPECT_EQ(*entry(properties, "", "ColorModel"), "CMYK");
}

TEST(Jpeg2000Container, aBoxOfItsOwnTellsDepthsThatDiffer) {
  const std::string header = imageHeader(8, 6, 3, 255) + isoBox("bpcc", "\x0B\x0B\x0B");
  EXPECT_EQ(*entry(propertiesOf(jp2File(header)), "", "Depth"), 12);
}

TEST(Jpeg2000Container, paletteAndAlphaAreSaidWhereTheyAre) {
  const auto channels = [](int kind) {
    return imageHeader(8, 6, 4) +
           isoBox("cdef", bigEndian(1, 2) + bigEndian(3, 2) +
                              bigEndian(static_cast<std::uint64_t>(kind), 2) + bigEndian(0, 2));
  };
  EXPECT_TRUE(entry(propertiesOf(jp2File(channels(1))), "", "HasAlpha"));
  EXPECT_FALSE(entry(propertiesOf(jp2File(channels(0))), "", "HasAlpha"));
  EXPECT_TRUE(
      entry(propertiesOf(jp2File(imageHeader(8, 6) + isoBox("pclr", ""))), "", "IsIndexed"));
}

TEST(Jpeg2000Container, theResolutionForDisplayGoesFirst) {
  const auto resolution = [](const char* type, std::uint64_t x, std::uint64_t y) {
    return isoBox(
        type, bigEndian(y, 2) + bigEndian(10, 2) + bigEndian(x, 2) + bigEndian(10, 2) + "\1\1"s);
  };
  const std::string captured = resolution("resc", 2835, 2835);
  const std::string shown = resolution("resd", 11811, 5906);
  for (const std::string& both : {captured + shown, shown + captured}) {
    const auto properties = propertiesOf(jp2File(imageHeader(8, 6) + isoBox("res ", both)));
    EXPECT_EQ(*entry(properties, "", "DPIWidth"), 300);
    EXPECT_EQ(*entry(properties, "", "DPIHeight"), 150);
  }
  const std::string none = isoBox("resc", "\0\1\0\0\0\1\0\0\0\0"s);
  EXPECT_FALSE(
      entry(propertiesOf(jp2File(imageHeader(8, 6) + isoBox("res ", none))), "", "DPIWidth"));
}

TEST(Jpeg2000Container, readsTheBlocksInItsBoxes) {
  const auto properties = propertiesOf(
      jp2File(imageHeader(8, 6),
              uuidBox("another uuid....", exifBlock("Nobody", 1)) +
                  uuidBox(xmpUuid, xmpPacket("<photoshop:City>Kingston</photoshop:City>")) +
                  uuidBox(iptcUuid, iptcDataset(2, 120, "a caption")) +
                  uuidBox(exifUuid, exifBlock("Maker", 6))));
  EXPECT_EQ(*entry(properties, "{TIFF}", "Make"), "Maker");
  EXPECT_EQ(*entry(properties, "", "Orientation"), 6);
  EXPECT_EQ(*entry(properties, "", "DPIWidth"), 300.0);
  EXPECT_EQ(*entry(properties, "{IPTC}", "City"), "Kingston");
  EXPECT_EQ(*entry(properties, "{IPTC}", "Caption/Abstract"), "a caption");
}

TEST(Jpeg2000Container, aBareCodestreamSaysItsSize) {
  const auto grid = [](std::uint32_t left) {
    return "\xFF\x4F\xFF\x51" + bigEndian(47, 2) + bigEndian(0, 2) + bigEndian(640, 4) +
           bigEndian(480, 4) + bigEndian(left, 4) + bigEndian(0, 4) + std::string(16, '\0') +
           bigEndian(3, 2) + "\x0B\1\1"s;
  };
  const auto properties = propertiesOf(grid(40));
  EXPECT_EQ(*entry(properties, "", "PixelWidth"), 600);
  EXPECT_EQ(*entry(properties, "", "PixelHeight"), 480);
  EXPECT_EQ(*entry(properties, "", "Depth"), 12);
  EXPECT_EQ(*entry(properties, "", "ColorModel"), "RGB");
  EXPECT_EQ(errorOf(grid(640)), "damaged JPEG 2000");
  EXPECT_EQ(errorOf(grid(40).substr(0, 42)), "truncated JPEG 2000");
}

TEST(Jpeg2000Container, saysWhyThereIsNoSize) {
  const std::string whole = jp2File(imageHeader(8, 6));
  EXPECT_EQ(errorOf(whole.substr(0, 50)), "truncated JPEG 2000");
  EXPECT_EQ(errorOf(jp2File("")), "damaged JPEG 2000");
  EXPECT_EQ(errorOf(jp2File(imageHeader(0, 6))), "damaged JPEG 2000");
}

}  // namespace
}  // namespace media::image
