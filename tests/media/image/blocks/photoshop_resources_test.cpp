// SPDX-License-Identifier: MIT
#include "media/image/blocks/photoshop_resources.h"

#include <gtest/gtest.h>

#include "media/image/blocks/metadata_blocks.h"
#include "tests/media/image/container_builder.h"

namespace media::image {
namespace {

using namespace std::string_literals;

model::Dictionary read(std::string_view resources) {
  model::Dictionary properties;
  readPhotoshopResources(viewOf(resources), properties);
  return properties;
}

TEST(PhotoshopResources, theDatasetsAreFoundAmongOthers) {
  const std::string iptc = photoshopResource(0x0404, iptcDataset(2, 90, "Kingston"));
  constexpr std::size_t sizes[] = {0, 1, 2, 31};
  for (const char* name : {"", "a", "ab", "abc"}) {
    for (const std::size_t size : sizes) {
      const auto properties = read(photoshopResource(0x03ED, std::string(size, 'r'), name) + iptc);
      ASSERT_TRUE(entry(properties, "{IPTC}", "City")) << name << size;
      EXPECT_EQ(*entry(properties, "{IPTC}", "City"), "Kingston");
    }
  }
}

TEST(PhotoshopResources, otherResourcesAreNotRead) {
  std::uint64_t read = 0;
  const std::string resources = photoshopResource(0x040C, std::string(10'000, 't')) +
                                photoshopResource(0x0404, iptcDataset(2, 90, "Kingston"));
  model::Dictionary properties;
  readPhotoshopResources(
      [&](std::uint64_t offset, std::uint64_t length) {
        read += length;
        return viewOf(resources).sub(offset, length);
      },
      properties);
  EXPECT_TRUE(entry(properties, "{IPTC}", "City"));
  EXPECT_LE(read, 100U);
}

TEST(PhotoshopResources, damagedResourcesEndTheWalk) {
  const std::string iptc = photoshopResource(0x0404, iptcDataset(2, 90, "Kingston"));
  const std::string damaged[] = {
      "",
      "8BIM",
      "9BIM" + iptc,
      "8BIM\x04\x04\xFF"s,
      "8BIM\x04\x04\0\0\xFF\xFF\xFF\xFF"s + iptc,
      iptc.substr(0, iptc.size() - 2),
      "8BIM\0\0\0\0\xFF\xFF\xFF\xFF"s + iptc,
  };
  for (const std::string& resources : damaged) EXPECT_TRUE(read(resources).empty());
}

}  // namespace
}  // namespace media::image
