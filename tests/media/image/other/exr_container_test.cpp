// SPDX-License-Identifier: MIT
#include "media/image/other/exr_container.h"

#include <gtest/gtest.h>

#include "tests/media/image/container_builder.h"

namespace media::image {
namespace {

using namespace std::string_literals;

std::string attribute(const std::string& name, const std::string& type, const std::string& value) {
  return name + '\0' + type + '\0' + littleEndian(value.size(), 4) + value;
}

std::string window(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom) {
  std::string box;
  for (const std::int32_t edge : {left, top, right, bottom}) {
    box += littleEndian(static_cast<std::uint32_t>(edge), 4);
  }
  return attribute("dataWindow", "box2i", box);
}

// Names with the kinds of their numbers.
std::string channels(const std::vector<std::pair<std::string, int>>& list) {
  std::string value;
  for (const auto& [name, kind] : list) {
    value +=
        name + '\0' + littleEndian(static_cast<std::uint64_t>(kind), 4) + std::string(12, '\0');
  }
  return attribute("channels", "chlist", value + '\0');
}

std::string exrFile(const std::string& attributes) {
  return "\x76\x2F\x31\x01\2\0\0\0"s + attributes + '\0' + "pixels";
}

TEST(ExrContainer, readsItsAttributes) {
  EXPECT_EQ(
      propertiesOf(exrFile(channels({{"A", 1}, {"B", 1}, {"G", 1}, {"R", 1}}) +
                           attribute("owner", "string", "somebody") + window(-2, 1, 637, 480))),
      (model::Dictionary{{"ColorModel", "RGB"},
                         {"Depth", 16},
                         {"HasAlpha", true},
                         {"IsFloat", true},
                         {"PixelHeight", 480},
                         {"PixelWidth", 640}}));
}

TEST(ExrContainer, theChannelsAreTheColourModelAndTheDepth) {
  const std::string size = window(0, 0, 7, 5);
  const auto gray = propertiesOf(exrFile(channels({{"Y", 2}}) + size));
  EXPECT_EQ(*entry(gray, "", "ColorModel"), "Gray");
  EXPECT_EQ(*entry(gray, "", "Depth"), 32);
  const auto luminance = propertiesOf(exrFile(channels({{"BY", 1}, {"RY", 1}, {"Y", 1}}) + size));
  EXPECT_EQ(*entry(luminance, "", "ColorModel"), "RGB");
  EXPECT_FALSE(entry(propertiesOf(exrFile(channels({{"Y", 0}}) + size)), "", "IsFloat"));
  EXPECT_FALSE(entry(propertiesOf(exrFile(size)), "", "Depth"));
}

TEST(ExrContainer, saysWhyThereIsNoSize) {
  EXPECT_EQ(errorOf(exrFile(window(0, 0, 7, 5)).substr(0, 30)), "truncated EXR");
  EXPECT_EQ(errorOf(exrFile(channels({{"Y", 1}}))), "damaged EXR");
  EXPECT_EQ(errorOf(exrFile(window(0, 0, -1, 5))), "damaged EXR");
  std::string endless;
  for (int index = 0; index < 5000; ++index) endless += attribute("a", "b", "");
  EXPECT_EQ(errorOf(exrFile(endless + window(0, 0, 7, 5))), "damaged EXR");
}

}  // namespace
}  // namespace media::image
