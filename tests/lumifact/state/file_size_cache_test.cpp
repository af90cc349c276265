// SPDX-License-Identifier: MIT
#include "lumifact/state/file_size_cache.h"

#include <gtest/gtest.h>

#include <limits>

namespace lumifact {
namespace {

// A disk that counts how often it is asked.
class FileSizeCacheTest : public testing::Test {
 protected:
  FileSizeCacheTest() { createFileSizeCache(); }

  std::optional<std::int64_t> sizeOf(NSString uuid, std::optional<std::uint64_t> onDisk) {
    return cachedFileSize(uuid, [&] {
      ++reads;
      return onDisk;
    });
  }
  std::optional<std::int64_t> sizeOf(const char* uuid, std::optional<std::uint64_t> onDisk) {
    return sizeOf(NSString::make(uuid), onDisk);
  }

  int reads = 0;

 private:
  const AutoreleasePool _pool;
};

TEST_F(FileSizeCacheTest, AFileIsReadOnceForAnAsset) {
  EXPECT_EQ(sizeOf("A", 2'400'000), 2'400'000);
  EXPECT_EQ(sizeOf("A", 999), 2'400'000);
  EXPECT_EQ(reads, 1);
  EXPECT_EQ(sizeOf("B", 5), 5);
  EXPECT_EQ(reads, 2);
}

TEST_F(FileSizeCacheTest, TheFirstAnswerIsWholeAndLaterOnesAreTheLow32Bits) {
  const struct {
    std::uint64_t bytes;
    std::int64_t cached;
  } cases[] = {
      {0, 0},
      {0x7FFF'FFFF, 0x7FFF'FFFF},
      {0x8000'0000, -0x8000'0000LL},
      {3'000'000'000, -1'294'967'296},
      {0xFFFF'FFFF, -1},
      {0x1'0000'0000, 0},
      {0x1'0000'0005, 5},
      {16'000'000'000'000, 1'246'822'400},
      {std::numeric_limits<std::int64_t>::max(), -1},
  };
  for (const auto& row : cases) {
    createFileSizeCache();
    EXPECT_EQ(sizeOf("A", row.bytes), static_cast<std::int64_t>(row.bytes)) << row.bytes;
    EXPECT_EQ(sizeOf("A", row.bytes), row.cached) << row.bytes;
  }
}

TEST_F(FileSizeCacheTest, AFileThatCannotBeReadHasNoSizeAndLeavesNoEntry) {
  EXPECT_FALSE(sizeOf("gone", std::nullopt));
  EXPECT_EQ(sizeOf("gone", 7), 7);
  EXPECT_EQ(reads, 2);
}

TEST_F(FileSizeCacheTest, WithoutAUuidNothingIsKept) {
  EXPECT_EQ(sizeOf(NSString(), 7), 7);
  EXPECT_EQ(sizeOf(NSString(), 8), 8);
  EXPECT_EQ(sizeOf("", 9), 9);
}

TEST_F(FileSizeCacheTest, ANewCacheIsEmpty) {
  EXPECT_EQ(sizeOf("A", 1), 1);
  createFileSizeCache();
  EXPECT_EQ(sizeOf("A", 2), 2);
}

}  // namespace
}  // namespace lumifact
