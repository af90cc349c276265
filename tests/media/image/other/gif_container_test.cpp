// SPDX-License-Identifier: MIT
#include "media/image/other/gif_container.h"

#include <gtest/gtest.h>

#include "media/image/image_source.h"
#include "tests/media/image/container_builder.h"

namespace media::image {
namespace {

using namespace std::string_literals;

std::string screen(int width, int height, int packed = 0) {
  return "GIF89a" + littleEndian(static_cast<std::uint64_t>(width), 2) +
         littleEndian(static_cast<std::uint64_t>(height), 2) +
         littleEndian(static_cast<std::uint64_t>(packed), 1) + "\0\0"s;
}

std::string graphicControl(int packed, int hundredths) {
  return "\x21\xF9\x04" + littleEndian(static_cast<std::uint64_t>(packed), 1) +
         littleEndian(static_cast<std::uint64_t>(hundredths), 2) + "\0\0"s;
}

std::string image(int width, int height) {
  return "\x2C\0\0\0\0"s + littleEndian(static_cast<std::uint64_t>(width), 2) +
         littleEndian(static_cast<std::uint64_t>(height), 2) + "\0\2\2LZ\0\x3B"s;
}

std::string subBlocks(std::string_view bytes) {
  std::string blocks;
  for (; !bytes.empty(); bytes.remove_prefix(std::min<std::size_t>(255, bytes.size()))) {
    const std::string_view block = bytes.substr(0, 255);
    blocks += bigEndian(block.size(), 1) + std::string(block);
  }
  return blocks + "\0"s;
}

TEST(GifContainer, readsTheScreenAndTheFirstFrame) {
  const auto properties = propertiesOf(screen(320, 200) + graphicControl(1, 7) + image(32, 20));
  const model::Dictionary expected = {
      {"ColorModel", "RGB"},
      {"Depth", 8},
      {"HasAlpha", true},
      {"PixelHeight", 200},
      {"PixelWidth", 320},
      {"{GIF}", model::Dictionary{{"DelayTime", 0.1}, {"UnclampedDelayTime", 0.07}}}};
  EXPECT_EQ(properties, expected);
}

TEST(GifContainer, longDelaysStay) {
  const auto properties = propertiesOf(screen(8, 6) + graphicControl(0, 150) + image(8, 6));
  EXPECT_EQ(*entry(properties, "{GIF}", "DelayTime"), 1.5);
  EXPECT_FALSE(entry(properties, "", "HasAlpha"));
}

TEST(GifContainer, onlyTheFirstFrameCounts) {
  const auto properties = propertiesOf(screen(8, 6) + image(8, 6) + graphicControl(1, 150));
  EXPECT_EQ(properties.size(), 4U);
}

TEST(GifContainer, theColourTableIsJumpedOver) {
  const auto properties = propertiesOf(screen(8, 6, 0x91) + std::string(12, '\x21') +
                                       graphicControl(0, 20) + image(8, 6));
  EXPECT_EQ(*entry(properties, "{GIF}", "DelayTime"), 0.2);
}

TEST(GifContainer, aScreenWithoutSizeHasTheFirstImages) {
  const auto properties = propertiesOf(screen(0, 0) + image(8, 6));
  EXPECT_EQ(*entry(properties, "", "PixelWidth"), 8);
  EXPECT_EQ(*entry(properties, "", "PixelHeight"), 6);
  EXPECT_EQ(errorOf(screen(0, 0)), "truncated GIF");
}

TEST(GifContainer, applicationExtensionsHoldXmpAndProfiles) {
  const std::string xmp = gifXmp(xmpPacket("<photoshop:City>Kingston</photoshop:City>"));
  const std::string profile = "\x21\xFF\x0BICCRGBG1012" + subBlocks(iccProfile("Display P3"));
  const std::string comment = "\x21\xFE" + subBlocks(std::string(1000, 'c'));
  const auto properties = propertiesOf(screen(8, 6) + comment + profile + xmp + image(8, 6));
  EXPECT_EQ(*entry(properties, "{IPTC}", "City"), "Kingston");
  EXPECT_EQ(*entry(properties, "", "ProfileName"), "Display P3");
}

TEST(GifContainer, aFileThatBreaksOffKeepsWhatItSaid) {
  const std::string file = screen(8, 6) + graphicControl(0, 20) + image(8, 6);
  for (std::size_t length = 13; length < file.size(); ++length) {
    EXPECT_EQ(*entry(propertiesOf(file.substr(0, length)), "", "PixelWidth"), 8) << length;
  }
  EXPECT_EQ(errorOf(file.substr(0, 12)), "truncated GIF");
}

TEST(GifContainer, endlessExtensionsEnd) {
  std::string many = screen(8, 6);
  for (int index = 0; index < 100'000; ++index) many += "\x21\xFE\0"s;
  EXPECT_EQ(*entry(propertiesOf(many), "", "PixelWidth"), 8);
}

}  // namespace
}  // namespace media::image
