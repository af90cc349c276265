// SPDX-License-Identifier: MIT
#include "media/image/other/bmp_container.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/media/image/container_builder.h"

namespace media::image {
namespace {

using namespace std::string_literals;

struct BmpToWrite {
  std::size_t headerSize = 40;
  std::int32_t width = 8;
  std::int32_t height = 6;
  int bits = 24;
  int compression = 0;
  int pixelsPerMetre = 0;
  std::uint32_t alphaMask = 0;
  std::string profile = {};
};

std::string bmpFile(const BmpToWrite& bmp) {
  std::string header(bmp.headerSize, '\0');
  const auto put = [&](std::size_t offset, std::uint64_t value, int bytes) {
    if (offset + static_cast<std::size_t>(bytes) > header.size()) return;
    header.replace(offset, static_cast<std::size_t>(bytes), littleEndian(value, bytes));
  };
  put(0, bmp.headerSize, 4);
  if (bmp.headerSize == 12) {
    put(4, static_cast<std::uint64_t>(bmp.width), 2);
    put(6, static_cast<std::uint64_t>(bmp.height), 2);
    put(10, static_cast<std::uint64_t>(bmp.bits), 2);
  } else {
    put(4, static_cast<std::uint64_t>(bmp.width), 4);
    put(8, static_cast<std::uint64_t>(bmp.height), 4);
    put(14, static_cast<std::uint64_t>(bmp.bits), 2);
    put(16, static_cast<std::uint64_t>(bmp.compression), 4);
    put(24, static_cast<std::uint64_t>(bmp.pixelsPerMetre), 4);
    put(28, static_cast<std::uint64_t>(bmp.pixelsPerMetre), 4);
    put(52, bmp.alphaMask, 4);
  }
  if (!bmp.profile.empty()) {
    put(56, 0x4D424544, 4);
    put(112, bmp.headerSize, 4);
    put(116, bmp.profile.size(), 4);
  }
  return "BM" + std::string(12, '\0') + header + bmp.profile;
}

TEST(BmpContainer, readsEveryHeaderVersion) {
  constexpr std::size_t sizes[] = {12, 16, 40, 52, 56, 64, 108, 124};
  for (const std::size_t size : sizes) {
    BmpToWrite bmp;
    bmp.headerSize = size;
    bmp.width = 640;
    bmp.height = 480;
    EXPECT_EQ(propertiesOf(bmpFile(bmp)),
              (model::Dictionary{
                  {"ColorModel", "RGB"}, {"Depth", 8}, {"PixelHeight", 480}, {"PixelWidth", 640}}))
        << size;
  }
}

TEST(BmpContainer, aNegativeHeightIsTopDown) {
  BmpToWrite bmp;
  bmp.height = -480;
  EXPECT_EQ(*entry(propertiesOf(bmpFile(bmp)), "", "PixelHeight"), 480);
  bmp.height = std::numeric_limits<std::int32_t>::min();
  EXPECT_EQ(*entry(propertiesOf(bmpFile(bmp)), "", "PixelHeight"), 2147483648);
}

TEST(BmpContainer, aDensityIsInMetres) {
  BmpToWrite bmp;
  bmp.pixelsPerMetre = 2835;
  EXPECT_EQ(*entry(propertiesOf(bmpFile(bmp)), "", "DPIWidth"), 72);
  EXPECT_EQ(*entry(propertiesOf(bmpFile(bmp)), "", "DPIHeight"), 72);
}

TEST(BmpContainer, paletteAndAlphaAreToldApart) {
  BmpToWrite palette;
  palette.bits = 8;
  EXPECT_EQ(*entry(propertiesOf(bmpFile(palette)), "", "IsIndexed"), true);
  BmpToWrite alpha{.headerSize = 124, .bits = 32, .compression = 3, .alphaMask = 0xFF000000};
  EXPECT_EQ(*entry(propertiesOf(bmpFile(alpha)), "", "HasAlpha"), true);
  alpha.compression = 0;
  EXPECT_FALSE(entry(propertiesOf(bmpFile(alpha)), "", "HasAlpha"));
}

TEST(BmpContainer, theFifthVersionMayEmbedAProfile) {
  BmpToWrite bmp{.headerSize = 124, .profile = iccProfile("Display P3")};
  EXPECT_EQ(*entry(propertiesOf(bmpFile(bmp)), "", "ProfileName"), "Display P3");
}

TEST(BmpContainer, saysWhyThereIsNoSize) {
  const std::string file = bmpFile({});
  EXPECT_EQ(errorOf(file.substr(0, 18)), "truncated BMP");
  EXPECT_EQ(errorOf(file.substr(0, 53)), "truncated BMP");
  BmpToWrite bmp;
  bmp.width = 0;
  EXPECT_EQ(errorOf(bmpFile(bmp)), "damaged BMP");
  bmp.width = -8;
  EXPECT_EQ(errorOf(bmpFile(bmp)), "damaged BMP");
  EXPECT_EQ(errorOf("BM is a text that begins like an image"), "none");
}

}  // namespace
}  // namespace media::image
