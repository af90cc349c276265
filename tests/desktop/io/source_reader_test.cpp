// SPDX-License-Identifier: MIT
#include "desktop/io/source_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

namespace desktop {
namespace {

std::vector<std::uint8_t> bytesOf(std::size_t size) {
  std::vector<std::uint8_t> bytes(size);
  std::iota(bytes.begin(), bytes.end(), std::uint8_t{0});
  return bytes;
}

TEST(SourceReaderTest, ReadsTheHeadOnce) {
  MemorySource source(bytesOf(200'000));
  SourceReader reader(source);
  for (const std::uint64_t offset : {0, 1000, 65535}) {
    const auto view = reader.view(offset, 1);
    ASSERT_TRUE(view) << offset;
    EXPECT_EQ(view->u8(0), static_cast<std::uint8_t>(offset)) << offset;
  }
  EXPECT_EQ(source.bytesRead(), SourceReader::headSize);
}

TEST(SourceReaderTest, AViewAcrossTheEndOfTheHeadReadsOnlyTheRest) {
  const auto bytes = bytesOf(200'000);
  MemorySource source(bytes);
  SourceReader reader(source);
  const auto view = reader.view(10, 70'000);
  ASSERT_TRUE(view);
  EXPECT_TRUE(std::ranges::equal(view->bytes(), std::span(bytes).subspan(10, 70'000)));
  EXPECT_EQ(source.bytesRead(), 70'010U);
}

TEST(SourceReaderTest, ReadsAheadOnlyWhereAsked) {
  MemorySource source(bytesOf(200'000));
  SourceReader reader(source);
  ASSERT_TRUE(reader.view(100'000, 8, SourceReader::ReadAhead::none));
  EXPECT_EQ(source.bytesRead(), 8U);
  ASSERT_TRUE(reader.view(150'000, 8));
  EXPECT_EQ(source.bytesRead(), 8U + SourceReader::windowSize);
  ASSERT_TRUE(reader.view(150'100, 8));
  EXPECT_EQ(source.bytesRead(), 8U + SourceReader::windowSize);
}

TEST(SourceReaderTest, RefusesWhatLiesOutside) {
  MemorySource source(bytesOf(100));
  SourceReader reader(source);
  EXPECT_FALSE(reader.view(99, 2));
  EXPECT_FALSE(reader.view(101, 0));
  EXPECT_FALSE(reader.view(~0ULL, ~0ULL));
  EXPECT_TRUE(reader.view(100, 0));
  EXPECT_EQ(reader.upTo(90, 50).size(), 10U);
  EXPECT_TRUE(reader.upTo(200, 5).isEmpty());
  EXPECT_FALSE(reader.failure());
}

TEST(SourceReaderTest, RemembersTheFirstFailure) {
  for (const auto failure : {FailingSource::Failure::error, FailingSource::Failure::shortRead}) {
    FailingSource source(bytesOf(100'000), 66'000, failure);
    SourceReader reader(source);
    EXPECT_TRUE(reader.view(0, 100));
    EXPECT_FALSE(reader.failure());
    EXPECT_FALSE(reader.view(65'000, 2000));
    EXPECT_TRUE(reader.failure());
  }
}

}  // namespace
}  // namespace desktop
