// SPDX-License-Identifier: MIT
#include "desktop/library/facts_cache.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/sample_photo.h"
#include "tests/support/temporary_folder.h"

namespace desktop::library {
namespace {

class FactsCacheTest : public testing::Test {
 protected:
  LibraryItem photo(const std::string& name, std::uint16_t width) const {
    const auto bytes = media::facts::sampleJpeg({.width = width});
    return {.path = _folder.write(name, bytes), .fileSize = bytes.size()};
  }

  support::TemporaryFolder _folder;
  FactsCache _cache{foundation::DeviceRoot(_folder.path()), 2};
};

TEST_F(FactsCacheTest, readsAFileOnce) {
  const LibraryItem item = photo("a.jpg", 40);
  EXPECT_EQ(_cache.known(item), nullptr);
  const FactsCache::Facts facts = _cache.read(item);
  ASSERT_TRUE(facts) << facts.error().reason;
  EXPECT_EQ((*facts)->pixelWidth, 40);
  EXPECT_FALSE((*facts)->properties);
  std::filesystem::remove(item.path);
  EXPECT_EQ(*_cache.read(item), *facts);
  ASSERT_NE(_cache.known(item), nullptr);
  EXPECT_EQ(**_cache.known(item), *facts);
}

TEST_F(FactsCacheTest, keepsFailuresToo) {
  const LibraryItem item{.path = _folder.file("a.jpg")};
  EXPECT_EQ(_cache.read(item).error().reason, "No such file or directory");
  photo("a.jpg", 40);
  EXPECT_FALSE(_cache.read(item));
}

TEST_F(FactsCacheTest, aFileThatChangedIsReadAgain) {
  LibraryItem item = photo("a.jpg", 40);
  ASSERT_TRUE(_cache.read(item));
  item = photo("a.jpg", 50);
  item.modificationDate = {1};
  EXPECT_EQ(_cache.known(item), nullptr);
  const FactsCache::Facts& facts = _cache.read(item);
  ASSERT_TRUE(facts);
  EXPECT_EQ((*facts)->pixelWidth, 50);
}

TEST_F(FactsCacheTest, forgetsWhatWasNotAskedForLongest) {
  const LibraryItem first = photo("1.jpg", 1);
  const LibraryItem second = photo("2.jpg", 2);
  const LibraryItem third = photo("3.jpg", 3);
  ASSERT_TRUE(_cache.read(first));
  ASSERT_TRUE(_cache.read(second));
  ASSERT_TRUE(_cache.read(first));
  ASSERT_TRUE(_cache.read(third));
  EXPECT_NE(_cache.known(first), nullptr);
  EXPECT_EQ(_cache.known(second), nullptr);
  EXPECT_NE(_cache.known(third), nullptr);
}

}  // namespace
}  // namespace desktop::library
