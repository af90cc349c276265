// SPDX-License-Identifier: MIT
#include "lumifact/assets/file_size.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace lumifact {
namespace {

// A cache in a map, and a disk that counts how often it is asked.
class FileSizeTest : public testing::Test {
 protected:
  std::optional<std::int64_t> size(std::string_view uuid, std::optional<std::uint64_t> onDisk) {
    return cachedFileSize(
        uuid,
        {.lookUp = [this](std::string_view key) -> std::optional<std::int32_t> {
           const auto entry = entries.find(std::string(key));
           if (entry == entries.end()) return std::nullopt;
           return entry->second;
         },
         .store = [this](std::string_view key,
                         std::int32_t lowBits) { entries[std::string(key)] = lowBits; }},
        [&] {
          ++reads;
          return onDisk;
        });
  }

  std::map<std::string, std::int32_t> entries;
  int reads = 0;
};

TEST_F(FileSizeTest, aFileIsReadOncePerAsset) {
  EXPECT_EQ(size("A", 2'400'000), 2'400'000);
  EXPECT_EQ(size("A", 999), 2'400'000);
  EXPECT_EQ(reads, 1);
  EXPECT_EQ(size("B", 5), 5);
  EXPECT_EQ(reads, 2);
}

TEST_F(FileSizeTest, aLargeFileIsTrueAtFirstAndNegativeFromTheCache) {
  EXPECT_EQ(size("A", 3'000'000'000), 3'000'000'000);
  EXPECT_EQ(size("A", 3'000'000'000), -1'294'967'296);
}

TEST_F(FileSizeTest, theCacheKeepsTheLowBitsOnly) {
  const struct {
    std::uint64_t bytes;
    std::int64_t cached;
  } cases[] = {
      {0, 0},
      {0x7FFF'FFFF, 0x7FFF'FFFF},
      {0x8000'0000, -0x8000'0000LL},
      {0xFFFF'FFFF, -1},
      {0x1'0000'0000, 0},
      {0x1'0000'0005, 5},
  };
  for (const auto& row : cases) {
    entries.clear();
    EXPECT_EQ(size("A", row.bytes), static_cast<std::int64_t>(row.bytes)) << row.bytes;
    EXPECT_EQ(size("A", row.bytes), row.cached) << row.bytes;
  }
}

TEST_F(FileSizeTest, anUnreadableFileHasNoSizeAndLeavesNoEntry) {
  EXPECT_EQ(size("A", std::nullopt), std::nullopt);
  EXPECT_TRUE(entries.empty());
  EXPECT_EQ(size("A", 7), 7);
}

}  // namespace
}  // namespace lumifact
