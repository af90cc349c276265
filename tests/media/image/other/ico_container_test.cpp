// SPDX-License-Identifier: MIT
#include "media/image/other/ico_container.h"

#include <gtest/gtest.h>

#include "tests/media/image/container_builder.h"

namespace media::image {
namespace {

using namespace std::string_literals;

std::string icoFile(const std::string& icon, int kind = 1, std::uint64_t offset = 22) {
  return "\0\0"s + littleEndian(static_cast<std::uint64_t>(kind), 2) + littleEndian(1, 2) +
         "\x10\x10\0\0"s + littleEndian(1, 2) + littleEndian(32, 2) + littleEndian(icon.size(), 4) +
         littleEndian(offset, 4) + icon;
}

std::string bitmap(std::int32_t width, int bits) {
  return littleEndian(40, 4) + littleEndian(static_cast<std::uint32_t>(width), 4) +
         littleEndian(32, 4) + littleEndian(1, 2) +
         littleEndian(static_cast<std::uint64_t>(bits), 2) + std::string(24, '\0');
}

TEST(IcoContainer, theMaskIsNoPartOfTheHeight) {
  EXPECT_EQ(propertiesOf(icoFile(bitmap(24, 24))),
            (model::Dictionary{
                {"ColorModel", "RGB"}, {"Depth", 8}, {"PixelHeight", 16}, {"PixelWidth", 24}}));
  EXPECT_EQ(*entry(propertiesOf(icoFile(bitmap(24, 24), 2)), "", "PixelWidth"), 24);
}

TEST(IcoContainer, paletteAndAlphaAreToldApart) {
  EXPECT_EQ(*entry(propertiesOf(icoFile(bitmap(16, 4))), "", "IsIndexed"), true);
  EXPECT_EQ(*entry(propertiesOf(icoFile(bitmap(16, 32))), "", "HasAlpha"), true);
}

TEST(IcoContainer, anIconMayBeAPng) {
  const auto properties = propertiesOf(icoFile(pngHeader(256, 200, 16, 4) + std::string(40, '\0')));
  EXPECT_EQ(*entry(properties, "", "PixelWidth"), 256);
  EXPECT_EQ(*entry(properties, "", "PixelHeight"), 200);
  EXPECT_EQ(*entry(properties, "", "Depth"), 16);
  EXPECT_EQ(*entry(properties, "", "ColorModel"), "Gray");
  EXPECT_EQ(*entry(properties, "", "HasAlpha"), true);
  EXPECT_EQ(
      *entry(propertiesOf(icoFile(pngHeader(8, 6, 2, 3) + std::string(40, '\0'))), "", "Depth"), 8);
}

TEST(IcoContainer, saysWhyThereIsNoSize) {
  EXPECT_EQ(errorOf(icoFile(bitmap(16, 24)).substr(0, 50)), "truncated ICO");
  EXPECT_EQ(errorOf(icoFile(bitmap(16, 24), 1, 0xFFFFFFFF)), "truncated ICO");
  EXPECT_EQ(errorOf(icoFile(bitmap(0, 24))), "damaged ICO");
  EXPECT_EQ(errorOf(icoFile(std::string(40, 'x'))), "damaged ICO");
  EXPECT_EQ(errorOf(icoFile(bitmap(16, 24), 1, 5)), "none");
  EXPECT_EQ(errorOf(icoFile(bitmap(16, 24), 3)), "none");
}

}  // namespace
}  // namespace media::image
