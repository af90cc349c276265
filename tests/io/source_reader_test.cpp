// SPDX-License-Identifier: MIT
#include "io/source_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

namespace io {
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

TEST(SourceReaderTest, ReadsNoMoreThanTheFirstBytesWhereTheyAreEnough) {
  const auto bytes = bytesOf(200'000);
  MemorySource source(bytes);
  SourceReader reader(source);
  ASSERT_TRUE(reader.view(0, SourceReader::firstRead));
  EXPECT_EQ(source.bytesRead(), SourceReader::firstRead);
  const auto view = reader.view(SourceReader::firstRead - 1, 2);
  ASSERT_TRUE(view);
  EXPECT_TRUE(
      std::ranges::equal(view->bytes(), std::span(bytes).subspan(SourceReader::firstRead - 1, 2)));
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

TEST(SourceReaderTest, ReadsNoMoreThanItMay) {
  MemorySource source(bytesOf(1'000'000));
  SourceReader reader(source);
  ASSERT_TRUE(reader.view(0, 1));
  reader.limitReads(SourceReader::headSize + 5000);
  ASSERT_TRUE(reader.view(60'000, 100));
  EXPECT_TRUE(reader.view(200'000, 8));
  EXPECT_TRUE(reader.view(300'000, 8));
  EXPECT_FALSE(reader.view(400'000, 1000));
  EXPECT_EQ(source.bytesRead(), SourceReader::headSize + 5000U);
  EXPECT_TRUE(reader.view(60'000, 100));
  EXPECT_FALSE(reader.failure());
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

TEST(SourceReaderTest, SaysWhyTheFirstReadFailed) {
  FailingSource broken(bytesOf(100'000), 0, FailingSource::Failure::error);
  SourceReader brokenReader(broken);
  EXPECT_FALSE(brokenReader.view(0, 1));
  EXPECT_EQ(brokenReader.failure()->reason, "Input/output error");

  FailingSource shrunk(bytesOf(100'000), 99'000, FailingSource::Failure::shortRead);
  SourceReader shrunkReader(shrunk);
  EXPECT_FALSE(shrunkReader.view(98'000, 2000));
  EXPECT_EQ(shrunkReader.failure()->reason, "truncated while it was read");
}

TEST(SourceReaderTest, StillGivesWhatCouldBeRead) {
  const auto bytes = bytesOf(100'000);
  FailingSource source(bytes, 40'000, FailingSource::Failure::shortRead);
  SourceReader reader(source);
  const auto view = reader.view(39'990, 10);
  ASSERT_TRUE(view);
  EXPECT_TRUE(std::ranges::equal(view->bytes(), std::span(bytes).subspan(39'990, 10)));
  EXPECT_FALSE(reader.view(39'990, 11));
  EXPECT_FALSE(reader.view(30'000, 50'000));
  EXPECT_TRUE(reader.failure());
}

TEST(SourceReaderTest, ReadsTheHeadAfterAFailureElsewhere) {
  FailingSource source(bytesOf(100'000), 80'000, FailingSource::Failure::error);
  SourceReader reader(source);
  EXPECT_FALSE(reader.view(90'000, 4));
  ASSERT_TRUE(reader.view(0, 4));
  EXPECT_EQ(reader.view(3, 1)->u8(0), 3);
  EXPECT_EQ(reader.failure()->reason, "Input/output error");
}

TEST(SourceReaderTest, TriesAnUnreadableHeadOnce) {
  class CountingSource : public ByteSource {
   public:
    std::uint64_t size() const override { return 1000; }
    int reads = 0;

   private:
    model::Result<std::size_t> doReadAt(std::uint64_t /*offset*/,
                                        std::span<std::uint8_t> /*into*/) override {
      ++reads;
      return model::Error{"bad disk"};
    }
  };
  CountingSource source;
  SourceReader reader(source);
  for (const std::uint64_t offset : {0, 500, 999}) EXPECT_FALSE(reader.view(offset, 1));
  EXPECT_EQ(source.reads, 1);
  EXPECT_EQ(reader.failure()->reason, "bad disk");
}

TEST(SourceReaderTest, RefusesViewsThatAreTooLarge) {
  MemorySource source(std::vector<std::uint8_t>(SourceReader::largestView + 10));
  SourceReader reader(source);
  EXPECT_FALSE(reader.view(0, SourceReader::largestView + 1));
  EXPECT_EQ(source.bytesRead(), 0U);
  EXPECT_TRUE(reader.view(5, SourceReader::largestView));
  EXPECT_FALSE(reader.failure());
}

TEST(SourceReaderTest, CopiesBytesToKeep) {
  const auto bytes = bytesOf(200'000);
  MemorySource source(bytes);
  SourceReader reader(source);
  const auto kept = reader.copy(100'000, 100);
  ASSERT_TRUE(reader.view(150'000, 100));
  ASSERT_TRUE(kept);
  EXPECT_TRUE(std::ranges::equal(*kept, std::span(bytes).subspan(100'000, 100)));
  EXPECT_FALSE(reader.copy(199'999, 2));
}

TEST(SourceReaderTest, ReadsNothingOfAnEmptySource) {
  MemorySource source({});
  SourceReader reader(source);
  EXPECT_TRUE(reader.view(0, 0));
  EXPECT_FALSE(reader.view(0, 1));
  EXPECT_TRUE(reader.upTo(0, 10).isEmpty());
  EXPECT_FALSE(reader.failure());
}

TEST(SourceReaderTest, GivesTheRightBytesWhereverAWalkGoes) {
  const auto bytes = bytesOf(300'001);
  MemorySource source(bytes);
  SourceReader reader(source);
  std::mt19937 random(64);
  for (int step = 0; step < 20'000; ++step) {
    const std::uint64_t offset = random() % bytes.size();
    const std::uint64_t length = random() % 3 == 0 ? random() % 100'000 : random() % 64;
    const auto ahead =
        random() % 2 == 0 ? SourceReader::ReadAhead::window : SourceReader::ReadAhead::none;
    const auto view = reader.view(offset, length, ahead);
    ASSERT_EQ(view.has_value(), offset + length <= bytes.size()) << offset << " " << length;
    if (!view) continue;
    ASSERT_TRUE(std::ranges::equal(view->bytes(), std::span(bytes).subspan(offset, length)))
        << offset << " " << length;
  }
}

}  // namespace
}  // namespace io
