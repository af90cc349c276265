// SPDX-License-Identifier: MIT
#include "media/image/heif/heif_locations.h"

#include <gtest/gtest.h>

#include "media/image/blocks/limits.h"
#include "tests/media/image/container_builder.h"

namespace media::image {
namespace {

using namespace std::string_literals;

// The payload of a table of version 1 with 4-byte offsets and lengths, and one item, number 1.
std::string table(int method, int dataReference, std::uint64_t base,
                  const std::vector<std::pair<std::uint64_t, std::uint64_t>>& extents) {
  std::string bytes = "\1\0\0\0\x44\x40\0\1\0\1"s +
                      bigEndian(static_cast<std::uint64_t>(method), 2) +
                      bigEndian(static_cast<std::uint64_t>(dataReference), 2) + bigEndian(base, 4) +
                      bigEndian(extents.size(), 2);
  for (const auto& [offset, length] : extents) bytes += bigEndian(offset, 4) + bigEndian(length, 4);
  return bytes;
}

TEST(HeifLocations, extentsCountFromTheBaseOffset) {
  const HeifLocation location = findHeifLocation(viewOf(table(0, 0, 1000, {{10, 20}, {50, 5}})), 1);
  ASSERT_EQ(location.extents.size(), 2U);
  EXPECT_FALSE(location.isInItemData);
  EXPECT_EQ(location.extents[0].begin, 1010U);
  EXPECT_EQ(location.extents[0].end, 1030U);
  EXPECT_EQ(location.extents[1].begin, 1050U);
}

TEST(HeifLocations, aLengthOf0ReachesToTheEnd) {
  const HeifLocation location = findHeifLocation(viewOf(table(1, 0, 0, {{10, 0}})), 1);
  ASSERT_EQ(location.extents.size(), 1U);
  EXPECT_TRUE(location.isInItemData);
  EXPECT_EQ(location.extents[0].end, ~std::uint64_t{0});
}

TEST(HeifLocations, otherItemsFilesAndConstructionsAreNotLocated) {
  EXPECT_TRUE(findHeifLocation(viewOf(table(0, 0, 0, {{10, 20}})), 2).extents.empty());
  EXPECT_TRUE(findHeifLocation(viewOf(table(0, 1, 0, {{10, 20}})), 1).extents.empty());
  EXPECT_TRUE(findHeifLocation(viewOf(table(2, 0, 0, {{10, 20}})), 1).extents.empty());
}

TEST(HeifLocations, sumsThatOverflowAreNotLocated) {
  const std::string wide = "\1\0\0\0\x88\x80\0\1\0\1\0\0\0\0"s;
  const std::string largest = bigEndian(~0ULL, 8);
  EXPECT_TRUE(
      findHeifLocation(viewOf(wide + largest + "\0\1"s + bigEndian(1, 8) + bigEndian(1, 8)), 1)
          .extents.empty());
  EXPECT_TRUE(
      findHeifLocation(viewOf(wide + bigEndian(5, 8) + "\0\1"s + bigEndian(1, 8) + largest), 1)
          .extents.empty());
}

TEST(HeifLocations, anItemInTooManyPiecesIsNotLocated) {
  const std::vector<std::pair<std::uint64_t, std::uint64_t>> most(limits.heifExtents, {1, 1});
  EXPECT_EQ(findHeifLocation(viewOf(table(0, 0, 0, most)), 1).extents.size(), limits.heifExtents);
  std::vector<std::pair<std::uint64_t, std::uint64_t>> more = most;
  more.emplace_back(1, 1);
  EXPECT_TRUE(findHeifLocation(viewOf(table(0, 0, 0, more)), 1).extents.empty());
}

TEST(HeifLocations, aTableCutAnywhereLocatesNothing) {
  const std::string whole = table(0, 0, 1000, {{10, 20}, {50, 5}});
  for (std::size_t length = 0; length < whole.size(); ++length) {
    EXPECT_TRUE(
        findHeifLocation(viewOf(std::string_view(whole).substr(0, length)), 1).extents.empty())
        << length;
  }
}

}  // namespace
}  // namespace media::image
