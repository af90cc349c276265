// SPDX-License-Identifier: MIT
#include "lumifact/state/file_size_cache.h"

#include <gtest/gtest.h>

#include "bridge/foundation.h"

namespace lumifact {
namespace {

class FileSizeCacheTest : public testing::Test {
 protected:
  static std::optional<std::int64_t> sizeOf(std::string_view uuid,
                                            std::optional<std::uint64_t> onDisk) {
    return cachedFileSize(uuid, fileSizeCache(), [onDisk] { return onDisk; });
  }

  const bridge::AutoreleasePool pool;
};

TEST_F(FileSizeCacheTest, MissesAndKeepsNothingBeforeItIsCreated) {
  const FileSizeCacheAccess cache = fileSizeCache();
  cache.store("uuid", 3);
  EXPECT_FALSE(cache.lookUp("uuid"));
}

TEST_F(FileSizeCacheTest, KeepsTheLow32BitsOfASize) {
  createFileSizeCache();
  EXPECT_EQ(sizeOf("small", 1234), 1234);
  EXPECT_EQ(sizeOf("small", 99), 1234);
  EXPECT_EQ(sizeOf("large", 3'000'000'000), 3'000'000'000);
  EXPECT_EQ(sizeOf("large", 99), 3'000'000'000 - 4'294'967'296);
}

TEST_F(FileSizeCacheTest, KeepsNothingWhereThereWasNoSize) {
  createFileSizeCache();
  EXPECT_FALSE(sizeOf("gone", std::nullopt));
  EXPECT_EQ(sizeOf("gone", 5), 5);
}

TEST_F(FileSizeCacheTest, IsEmptyWhenItIsCreatedAnew) {
  createFileSizeCache();
  EXPECT_EQ(sizeOf("uuid", 1), 1);
  createFileSizeCache();
  EXPECT_EQ(sizeOf("uuid", 2), 2);
}

}  // namespace
}  // namespace lumifact
