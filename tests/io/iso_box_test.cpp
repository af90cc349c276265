// SPDX-License-Identifier: MIT
#include "io/iso_box.h"

#include <gtest/gtest.h>

#include <string>

namespace io {
namespace {

using namespace std::string_literals;

std::string bigEndian(std::uint64_t value, int bytes) {
  std::string text;
  for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8) {
    text.push_back(static_cast<char>(value >> shift));
  }
  return text;
}

std::string box(const std::string& type, const std::string& payload) {
  return bigEndian(8 + payload.size(), 4) + type + payload;
}

MemorySource sourceOf(const std::string& bytes) {
  return MemorySource(std::vector<std::uint8_t>(bytes.begin(), bytes.end()));
}

// The boxes of a file as "type begin-end", with a "!" for a cut one.
std::string walked(const std::string& bytes) {
  MemorySource source = sourceOf(bytes);
  SourceReader reader(source);
  IsoBoxWalk walk(reader, {0, source.size()});
  std::string text;
  while (const auto found = walk.next()) {
    if (!text.empty()) text += ", ";
    text += bigEndian(found->type, 4) + " " + std::to_string(found->payload.begin) + "-" +
            std::to_string(found->payload.end) + (found->isCut ? "!" : "");
  }
  return text;
}

TEST(IsoBoxTest, WalksBoxesOfEveryHeaderForm) {
  struct Case {
    const char* name;
    std::string bytes;
    const char* expected;
  };
  const Case cases[] = {
      {"none", "", ""},
      {"two", box("ftyp", "heic") + box("free", ""), "ftyp 8-12, free 20-20"},
      {"size 0 reaches to the end", box("ftyp", "") + "\0\0\0\0mdatabc"s, "ftyp 8-8, mdat 16-19"},
      {"64-bit size", "\0\0\0\1mdat"s + bigEndian(18, 8) + "ab" + box("free", ""),
       "mdat 16-18, free 26-26"},
      {"user type", box("uuid", "0123456789abcdefXY"), "uuid 24-26"},
      {"size beyond the end is cut", bigEndian(100, 4) + "mdatabc", "mdat 8-11!"},
      {"2^63", "\0\0\0\1mdat"s + bigEndian(1ULL << 63, 8) + "ab", "mdat 16-18!"},
      {"largest", "\0\0\0\1mdat"s + bigEndian(~0ULL, 8) + "ab", "mdat 16-18!"},
  };
  for (const Case& each : cases) EXPECT_EQ(walked(each.bytes), each.expected) << each.name;
}

TEST(IsoBoxTest, EndsAtABoxSmallerThanItsHeader) {
  const std::string refused[] = {
      bigEndian(7, 4) + "free",
      bigEndian(2, 4) + "free",
      "\0\0\0\1mdat"s + bigEndian(15, 8),
      "\0\0\0\1mdat"s + bigEndian(0, 8),
      "\0\0\0\1mdat\0\0"s,
      bigEndian(23, 4) + "uuid0123456789abcdef",
      "\0\0\0\x18uuid0123456789"s,
      "\0\0\0\x08mda"s,
  };
  for (const std::string& bytes : refused) {
    EXPECT_EQ(walked(box("ftyp", "") + bytes + box("free", "")).substr(0, 8), "ftyp 8-8");
    EXPECT_EQ(walked(bytes), "") << testing::PrintToString(bytes);
  }
}

TEST(IsoBoxTest, JumpsOverPayloadsWithoutReadingThem) {
  MemorySource source =
      sourceOf(std::string(100'000, '\0').replace(0, 8, bigEndian(80'000, 4) + "free"));
  SourceReader reader(source);
  ASSERT_TRUE(reader.view(0, 8));
  const std::uint64_t head = source.bytesRead();
  IsoBoxWalk walk(reader, {0, source.size()}, SourceReader::ReadAhead::none);
  EXPECT_EQ(walk.next()->payload.end, 80'000U);
  EXPECT_EQ(walk.next()->payload.end, 100'000U);
  EXPECT_EQ(source.bytesRead() - head, 16U);
}

TEST(IsoBoxTest, KeepsTheUserType) {
  MemorySource source = sourceOf(box("uuid", "0123456789abcdefXY"));
  SourceReader reader(source);
  const auto found = findBox(reader, {0, source.size()}, model::fourCharCode("uuid"));
  ASSERT_TRUE(found);
  EXPECT_EQ(std::string(found->uuid.begin(), found->uuid.end()), "0123456789abcdef");
  EXPECT_TRUE(found->is("uuid"));
  EXPECT_FALSE(found->is("free"));
}

TEST(IsoBoxTest, StopsAfterTheLargestCount) {
  std::string many;
  for (int index = 0; index < IsoBoxWalk::largestCount + 10; ++index) many += box("free", "");
  MemorySource source = sourceOf(many);
  SourceReader reader(source);
  IsoBoxWalk walk(reader, {0, source.size()});
  int count = 0;
  while (walk.next()) ++count;
  EXPECT_EQ(count, IsoBoxWalk::largestCount);
}

TEST(IsoBoxTest, NeverLeavesTheSource) {
  MemorySource source = sourceOf(box("free", "") + box("free", ""));
  SourceReader reader(source);
  IsoBoxWalk behind(reader, {~0ULL - 4, ~0ULL});
  EXPECT_FALSE(behind.next());
  IsoBoxWalk beyond(reader, {8, ~0ULL});
  EXPECT_TRUE(beyond.next());
  EXPECT_FALSE(beyond.next());
}

TEST(IsoBoxTest, GivesTheBytesOfABoxUpToALimit) {
  MemorySource source = sourceOf(box("pitm", "\0\0\0\0ab"s));
  SourceReader reader(source);
  const auto found = findBox(reader, {0, source.size()}, model::fourCharCode("pitm"));
  ASSERT_TRUE(found);
  ASSERT_TRUE(boxBytes(reader, *found, 6));
  EXPECT_EQ(boxBytes(reader, *found, 6)->size(), 6U);
  EXPECT_FALSE(boxBytes(reader, *found, 5));
  EXPECT_EQ(fullBoxBody(*found).size(), 2U);
  EXPECT_EQ(fullBoxBody(IsoBox{}).size(), 0U);
}

TEST(IsoBoxTest, FailedReadsEndTheWalk) {
  const std::string bytes = box("ftyp", "heic") + box("free", "");
  for (std::uint64_t failing = 0; failing < bytes.size(); ++failing) {
    FailingSource source({bytes.begin(), bytes.end()}, failing, FailingSource::Failure::error);
    SourceReader reader(source);
    IsoBoxWalk walk(reader, {0, source.size()});
    int count = 0;
    while (walk.next()) ++count;
    EXPECT_LE(count, 1) << failing;
    EXPECT_TRUE(reader.failure()) << failing;
  }
}

}  // namespace
}  // namespace io
