// SPDX-License-Identifier: MIT
#include "foundation/property_lists/binary_property_list.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "model/description.h"
#include "tests/foundation/raw_binary_list.h"

namespace foundation {
namespace {

using model::Array;
using model::Data;
using model::Date;
using model::Dictionary;
using model::Value;

model::Result<Value> parse(const std::string& bytes) {
  return parseBinaryPropertyList(viewOf(bytes));
}

std::string bytes(std::initializer_list<int> values) {
  std::string text;
  for (const int value : values) text += static_cast<char>(value);
  return text;
}

TEST(BinaryPropertyListTest, readsEveryKindOfScalar) {
  const struct {
    std::string object;
    Value expected;
  } cases[] = {
      {bytes({0x00}), Value()},
      {bytes({0x08}), false},
      {bytes({0x09}), true},
      {bytes({0x10, 0xFF}), 255},
      {bytes({0x11, 0xFF, 0xFE}), 65534},
      {bytes({0x12, 0xFF, 0, 0, 1}), 4278190081LL},
      {bytes({0x13}) + bigEndian(~std::uint64_t{0}, 8), -1},
      {bytes({0x14}) + bigEndian(0, 8) + bigEndian(5, 8), 5},
      {bytes({0x14}) + std::string(16, '\xFF'), -1},
      {bytes({0x22}) + bigEndian(0x3DCCCCCD, 4), 0.1},
      {bytes({0x22}) + bigEndian(0x3C10E29F, 4), 0.008843093},
      {bytes({0x23}) + bigEndian(0x4052000000000000, 8), 72.0},
      {bytes({0x33}) + bigEndian(0, 8), Date{978307200}},
      {bytes({0x33}) + bigEndian(0x41C0000000000000, 8), Date{978307200.0 + 536870912.0}},
      {bytes({0x40}), Data{}},
      {bytes({0x42, 0xCA, 0xFE}), Data{0xCA, 0xFE}},
      {bytes({0x50}), ""},
      {bytes({0x53}) + "abc", "abc"},
      {bytes({0x5F, 0x10, 0x10}) + "0123456789abcdef", "0123456789abcdef"},
      {bytes({0x5F, 0x12, 0, 0, 0, 1}) + "x", "x"},
      {bytes({0x62, 0x00, 0xE9, 0x20, 0xAC}), "\xC3\xA9\xE2\x82\xAC"},
      {bytes({0x62, 0xD8, 0x3D, 0xDC, 0xF7}), "\xF0\x9F\x93\xB7"},
      {bytes({0x61, 0xD8, 0x3D}), "\xEF\xBF\xBD"},
      {bytes({0xA0}), Array{}},
      {bytes({0xD0}), Dictionary{}},
  };
  for (const auto& row : cases) {
    const auto parsed = parse(rawList({row.object}));
    ASSERT_TRUE(parsed) << testing::PrintToString(row.object) << ": " << parsed.error().reason;
    EXPECT_EQ(*parsed, row.expected)
        << testing::PrintToString(row.object) << ": " << model::valueText(*parsed);
  }
}

TEST(BinaryPropertyListTest, readsNumbersThatAreNone) {
  const auto parsed = parse(rawList({bytes({0x23}) + bigEndian(0x7FF8000000000000, 8)}));
  ASSERT_TRUE(parsed);
  EXPECT_TRUE(std::isnan(*parsed->asReal()));
}

TEST(BinaryPropertyListTest, readsContainersByReference) {
  const std::string list = rawList({rawDictionary({1, 2, 3, 4}), bytes({0x51, 'b'}),
                                    bytes({0x51, 'a'}), rawContainer({4, 4}), bytes({0x10, 7})});
  const auto parsed = parse(list);
  ASSERT_TRUE(parsed) << parsed.error().reason;
  EXPECT_EQ(*parsed, (Value(Dictionary{{"b", Array{7, 7}}, {"a", 7}})));
}

TEST(BinaryPropertyListTest, refusesObjectsThatAreNone) {
  const std::string objects[] = {
      bytes({0x01}),
      bytes({0x0F}),
      bytes({0x15}) + std::string(32, '\0'),
      bytes({0x20, 0}),
      bytes({0x24}) + std::string(16, '\0'),
      bytes({0x32, 0, 0, 0, 0}),
      bytes({0x70}),
      bytes({0xB0}),
      bytes({0xC0}),
      bytes({0xF0}),
      bytes({0x4F}),
      bytes({0x4F, 0x08}),
      bytes({0x4F, 0x14}) + std::string(16, '\0'),
  };
  for (const std::string& object : objects) {
    const auto parsed = parse(rawList({object}));
    ASSERT_FALSE(parsed) << testing::PrintToString(object);
    EXPECT_EQ(parsed.error().reason, "damaged binary property list");
  }
}

TEST(BinaryPropertyListTest, refusesUidsAndIntegersBeyond64Bits) {
  const auto uid = parse(rawList({bytes({0x80, 1})}));
  ASSERT_FALSE(uid);
  EXPECT_EQ(uid.error().reason, "property list with a UID, which no settings hold");
  for (const auto& [high, low] : {std::pair<std::uint64_t, std::uint64_t>{1, 0},
                                  {~std::uint64_t{0} - 1, ~std::uint64_t{0}},
                                  {~std::uint64_t{0}, 5}}) {
    const auto wide = parse(rawList({bytes({0x14}) + bigEndian(high, 8) + bigEndian(low, 8)}));
    ASSERT_FALSE(wide) << high << " " << low;
    EXPECT_EQ(wide.error().reason, "property list with an integer beyond 64 bits");
  }
}

TEST(BinaryPropertyListTest, refusesKeysThatAreNoText) {
  EXPECT_FALSE(parse(rawList({rawDictionary({1, 1}), bytes({0x10, 7})})));
}

TEST(BinaryPropertyListTest, aListThatHoldsItselfEnds) {
  const auto self = parse(rawList({rawContainer({0})}));
  ASSERT_FALSE(self);
  EXPECT_EQ(self.error().reason, "property list too large or nested too deep");
  EXPECT_FALSE(parse(rawList({rawContainer({1, 1}), rawContainer({0, 0})})));
  EXPECT_FALSE(parse(rawList({rawDictionary({1, 0}), bytes({0x51, 'a'})})));
}

TEST(BinaryPropertyListTest, aGraphThatDoublesAtEachOfFortyLevelsEnds) {
  std::vector<std::string> objects;
  for (std::uint64_t level = 1; level <= 40; ++level) {
    objects.push_back(rawContainer({level, level}));
  }
  objects.push_back(bytes({0x10, 1}));
  const auto parsed = parse(rawList(objects));
  ASSERT_FALSE(parsed);
  EXPECT_EQ(parsed.error().reason, "property list too large or nested too deep");
}

TEST(BinaryPropertyListTest, aLongTextReachedOftenIsOverBudget) {
  const std::string text(500'000, 'x');
  const std::string longText = bytes({0x5F, 0x12}) + bigEndian(text.size(), 4) + text;
  EXPECT_TRUE(parse(rawList({rawContainer({1, 1, 1}), longText})));
  EXPECT_FALSE(parse(rawList({rawContainer({1, 1, 1, 1, 1, 1, 1, 1, 1}), longText})));
}

TEST(BinaryPropertyListTest, nestingIsReadUpToItsLimit) {
  const auto nested = [](int containers) {
    std::vector<std::string> objects;
    for (int level = 1; level < containers; ++level) {
      objects.push_back(rawContainer({static_cast<std::uint64_t>(level)}));
    }
    objects.push_back(bytes({0xA0}));
    return rawList(objects);
  };
  EXPECT_TRUE(parse(nested(model::maximumNesting)));
  EXPECT_FALSE(parse(nested(model::maximumNesting + 1)));
}

TEST(BinaryPropertyListTest, countsBeyondTheFileAreRefused) {
  for (const int marker : {0x4F, 0x5F, 0x6F, 0xAF, 0xDF}) {
    for (const std::uint64_t count : {std::uint64_t{1'000'000'000}, std::uint64_t{1} << 62,
                                      std::uint64_t{1} << 63, ~std::uint64_t{0}}) {
      EXPECT_FALSE(parse(rawList({bytes({marker, 0x13}) + bigEndian(count, 8)})))
          << marker << " " << count;
    }
  }
}

TEST(BinaryPropertyListTest, trailersThatLieAreRefused) {
  const std::string objects = std::string("bplist00") + "\x09";
  const RawTrailer good = {
      .offsetSize = 1, .referenceSize = 1, .objectCount = 1, .top = 0, .offsetTable = 9};
  const auto list = [&](RawTrailer trailer) { return objects + "\x08" + trailer.bytes(); };
  EXPECT_TRUE(parse(list(good)));
  std::vector<RawTrailer> bad(10, good);
  bad[0].offsetSize = 0;
  bad[1].offsetSize = 9;
  bad[2].referenceSize = 0;
  bad[3].referenceSize = 255;
  bad[4].objectCount = 0;
  bad[5].objectCount = ~std::uint64_t{0};
  bad[6].objectCount = 1'000'000'000;
  bad[7].top = 1;
  bad[8].offsetTable = ~std::uint64_t{0};
  bad[9].offsetTable = 8;  // the object would begin in the table
  for (std::size_t index = 0; index < bad.size(); ++index) {
    EXPECT_FALSE(parse(list(bad[index]))) << index;
  }
}

TEST(BinaryPropertyListTest, writesEqualScalarsOnce) {
  const Value tree = Dictionary{{"a", Array{"text", "text", 5, 5, 1.5, 1.5, true, true}},
                                {"b", Dictionary{{"a", "text"}, {"b", Data{1}}}},
                                {"text", Data{1}}};
  const auto written = binaryPropertyList(tree);
  ASSERT_TRUE(written);
  // Three containers; "a", "b", "text", 5, 1.5, true and the data.
  EXPECT_EQ(*viewOf(*written).u64(written->size() - 24, io::ByteOrder::big), 10U);
  EXPECT_EQ(*parse(*written), tree);
}

TEST(BinaryPropertyListTest, tellsApartWhatOnlyLooksEqual) {
  const Value tree = Array{1, 1.0, true, "1", Data{'1'}, Date{978307201}, "", Data{}, -1, 255};
  const auto written = binaryPropertyList(tree);
  ASSERT_TRUE(written);
  EXPECT_EQ(*parse(*written), tree);
}

TEST(BinaryPropertyListTest, writesTheSmallestForm) {
  const auto written = binaryPropertyList(Value(Dictionary{{"k", 5}}));
  ASSERT_TRUE(written);
  const RawTrailer trailer = {
      .offsetSize = 1, .referenceSize = 1, .objectCount = 3, .top = 0, .offsetTable = 15};
  const std::string objects = bytes({0xD1, 1, 2, 0x51, 'k', 0x10, 5});
  const std::string offsets = bytes({8, 11, 13});
  EXPECT_EQ(*written, "bplist00" + objects + offsets + trailer.bytes());
}

TEST(BinaryPropertyListTest, writesIntegersOfEveryWidth) {
  using Limits = std::numeric_limits<std::int64_t>;
  for (const std::int64_t integer :
       {Limits::min(), std::int64_t{-1}, std::int64_t{0}, std::int64_t{255}, std::int64_t{256},
        std::int64_t{65536}, std::int64_t{0xFFFF'FFFF}, std::int64_t{0x1'0000'0000},
        Limits::max()}) {
    const auto written = binaryPropertyList(Value(integer));
    ASSERT_TRUE(written);
    EXPECT_EQ(*parse(*written), Value(integer)) << integer;
  }
}

TEST(BinaryPropertyListTest, writesIntegersBeyondTheSignedOnesInSixteenBytes) {
  for (const std::uint64_t integer :
       {std::uint64_t{1} << 63, std::numeric_limits<std::uint64_t>::max()}) {
    const auto written = binaryPropertyList(Value(integer));
    ASSERT_TRUE(written);
    EXPECT_EQ(written->substr(8, 17), bytes({0x14}) + bigEndian(0, 8) + bigEndian(integer, 8));
    EXPECT_EQ(*parse(*written), Value(integer)) << integer;
  }
}

TEST(BinaryPropertyListTest, manyObjectsWidenReferencesAndOffsets) {
  Array elements;
  for (int index = 0; index < 70'000; ++index) elements.emplace_back(index);
  const auto written = binaryPropertyList(Value(elements));
  ASSERT_TRUE(written);
  EXPECT_EQ(*parse(*written), Value(elements));
}

TEST(BinaryPropertyListTest, aNullCannotBeWritten) {
  EXPECT_FALSE(binaryPropertyList(Value()));
  EXPECT_FALSE(binaryPropertyList(Value(Array{1, Value()})));
  EXPECT_FALSE(binaryPropertyList(Value(Dictionary{{"a", Dictionary{{"b", Value()}}}})));
}

}  // namespace
}  // namespace foundation
