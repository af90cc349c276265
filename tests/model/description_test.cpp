// SPDX-License-Identifier: MIT
#include "model/description.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace model {
namespace {

TEST(Description, TextOfAValueStandsForItself) {
  struct Row {
    Value value;
    const char* text;
  };
  const Row rows[] = {
      {Value(), "<null>"},
      {true, "1"},
      {false, "0"},
      {-42, "-42"},
      {72.0, "72"},
      {0.008333333333333333, "0.008333333333333333"},
      {std::numeric_limits<double>::infinity(), "inf"},
      {"a \"b\"\n\\", "a \"b\"\n\\"},
      {"", ""},
      {Date{1538309391}, "2018-09-30 12:09:51 +0000"},
      {Date{-62135596800}, "0001-01-01 00:00:00 +0000"},
      {Data{}, "<>"},
      {Data{0x6c, 0x75, 0x6d, 0x69}, "<6c756d69>"},
      {Data{0x6c, 0x75, 0x6d, 0x69, 0x66}, "<6c756d69 66>"},
      {Data{0, 1, 2, 3, 4, 5, 6, 7, 0xAB}, "<00010203 04050607 ab>"},
      {Array{1, "a b"}, "(\n    1,\n    \"a b\"\n)"},
  };
  for (const Row& row : rows) EXPECT_EQ(valueText(row.value), row.text);
}

TEST(Description, OfADictionaryPutsAnEntryALine) {
  EXPECT_EQ(description(Dictionary{{"Make", "Apple"}, {"XDensity", 72}}),
            "{\n    Make = Apple;\n    XDensity = 72;\n}");
}

TEST(Description, OfAnArrayPutsCommasBetweenElements) {
  EXPECT_EQ(valueText(std::uint64_t{1} << 63), "9223372036854775808");
  EXPECT_EQ(description(Array{1, "two", 3.5}), "(\n    1,\n    two,\n    \"3.5\"\n)");
}

TEST(Description, OfEmptyContainersHasTwoLines) {
  EXPECT_EQ(description(Dictionary{}), "{\n}");
  EXPECT_EQ(description(Array{}), "(\n)");
  EXPECT_EQ(description(Dictionary{{"a", Array{}}, {"b", Dictionary{}}}),
            "{\n    a = (\n    );\n    b = {\n    };\n}");
}

TEST(Description, OpensNestedBracketsWhereTheValueStands) {
  const Dictionary nested = {
      {"list", Array{Dictionary{{"x", 1}}, Array{2, 3}}},
      {"map", Dictionary{{"inner", Dictionary{{"y", "z"}}}}},
  };
  EXPECT_EQ(description(nested), R"({
    list = (
        {
            x = 1;
        },
        (
            2,
            3
        )
    );
    map = {
        inner = {
            y = z;
        };
    };
})");
}

TEST(Description, QuotesEverythingButAsciiLettersAndDigits) {
  struct Row {
    Value value;
    const char* text;
  };
  const Row rows[] = {
      {"RGB", "RGB"},
      {"00000000", "00000000"},
      {"", "\"\""},
      {"a b", "\"a b\""},
      {"DSC_0001", "\"DSC_0001\""},
      {"12.4", "\"12.4\""},
      {"+01:00", "\"+01:00\""},
      {"a\"b\\c", "\"a\\\"b\\\\c\""},
      {"a\nb\tc", "\"a\\nb\\tc\""},
      {std::string("\0", 1), "\"\\U0000\""},
      {"\a\r\x1B", "\"\\U0007\\U000d\\U001b\""},
      {"\x7F", "\"\\U007f\""},
      {"\u0085\u009F", "\"\\U0085\\U009f\""},
      {"\u00A0", "\"\u00A0\""},
      {"Ljósavatn", "\"Ljósavatn\""},
      {"90° \U0001F4F7", "\"90° \U0001F4F7\""},
      {72, "72"},
      {-2, "\"-2\""},
      {72.0, "72"},
      {0.5, "\"0.5\""},
      {1e-5, "\"1e-05\""},
      {std::numeric_limits<double>::quiet_NaN(), "nan"},
      {true, "1"},
      {Value(), "\"<null>\""},
      {Data{1, 2, 3, 4, 5}, "<01020304 05>"},
      {Date{1538309391}, "\"2018-09-30 12:09:51 +0000\""},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(description(row.value), row.text);
    EXPECT_EQ(description(Array{row.value}), std::string("(\n    ") + row.text + "\n)");
  }
}

TEST(Description, QuotesKeysAsItQuotesTexts) {
  EXPECT_EQ(description(Dictionary{{"{GIF}", 1}, {"", 2}, {"a\nb", 3}, {"14", 4}}),
            "{\n    \"\" = 2;\n    14 = 4;\n    \"a\\nb\" = 3;\n    \"{GIF}\" = 1;\n}");
}

TEST(Description, OrdersKeysByTheirUtf16Units) {
  EXPECT_EQ(description(Dictionary{{"Depth", 8},
                                   {"DPIWidth", 72},
                                   {"_YCbCr", 1},
                                   {"{ExifAux}", 2},
                                   {"{Exif}", 3},
                                   {"\uFFFD", 4},
                                   {"\U0001F4F7", 5},
                                   {"2", 6},
                                   {"14", 7},
                                   {"é", 8}}),
            "{\n    14 = 7;\n    2 = 6;\n    DPIWidth = 72;\n    Depth = 8;\n    \"_YCbCr\" = 1;\n"
            "    \"{ExifAux}\" = 2;\n    \"{Exif}\" = 3;\n    \"é\" = 8;\n    \"\U0001F4F7\" = 5;\n"
            "    \"\uFFFD\" = 4;\n}");
}

TEST(Description, WalksTheDeepestTreesThatReadersMake) {
  Value tree = 1;
  for (int level = 0; level < maximumNesting; ++level) tree = Array{std::move(tree)};
  const std::string text = description(tree);
  EXPECT_TRUE(text.starts_with("(\n    (\n"));
  EXPECT_EQ(std::ranges::count(text, ')'), maximumNesting);
}

TEST(Description, JoinsTheTextsOfElements) {
  EXPECT_EQ(joinedElements({}, ", "), "");
  EXPECT_EQ(joinedElements({1}, ", "), "1");
  EXPECT_EQ(joinedElements({1, "a b", 0.5, true}, ", "), "1, a b, 0.5, 1");
  EXPECT_EQ(joinedElements({1, 2}, ""), "12");
}

TEST(Description, HalvesEveryFourBlanks) {
  struct Row {
    const char* text;
    const char* halved;
  };
  const Row rows[] = {
      {"", ""},
      {"a", "a"},
      {"   ", "   "},
      {"    ", "  "},
      {"     ", "   "},
      {"       ", "     "},
      {"        ", "    "},
      {"    a = 1;\n        b", "  a = 1;\n    b"},
      {"a    b     c", "a  b   c"},
      {"\t    \t", "\t  \t"},
  };
  for (const Row& row : rows) EXPECT_EQ(halvingIndentation(row.text), row.halved) << row.text;
}

}  // namespace
}  // namespace model
