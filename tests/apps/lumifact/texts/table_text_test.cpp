// SPDX-License-Identifier: MIT
#include "apps/lumifact/texts/table_text.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

namespace lumifact::tool {
namespace {

using model::Array;
using model::Data;
using model::Dictionary;

std::string textOf(const Dictionary& record, const Dictionary& table) {
  ::setenv("TZ", "UTC", 1);
  ::tzset();
  return tableText(record, table, model::compareKeys, foundation::Locale("en_US"));
}

TEST(TableText, ShowsSummaryRowsFirstWithoutTheirPrefix) {
  const Dictionary record{{"LF742J01FilePath", "a.jpg"}, {"LF742J02FileDate", "today"}};
  EXPECT_EQ(textOf(record, {{"Depth", 8}}), "FilePath = a.jpg\nFileDate = today\nDepth = 8\n");
  EXPECT_EQ(textOf({}, {{"LF742J", 1}}), " = 1\n");
}

TEST(TableText, SortsKeysIgnoringCase) {
  EXPECT_EQ(textOf({}, {{"b", 1}, {"A", 2}, {"c", 3}, {"{x}", Dictionary{}}}),
            "{x}\nA = 2\nb = 1\nc = 3\n");
}

TEST(TableText, IndentsWhatContainersHold) {
  const Dictionary table{
      {"{Exif}",
       Dictionary{{"Flash", "off"}, {"List", Array{1, "two", Array{3}, Dictionary{{"k", 4}}}}}}};
  EXPECT_EQ(textOf({}, table),
            "{Exif}\n"
            "  Flash = off\n"
            "  List\n"
            "    - 1\n"
            "    - two\n"
            "    -\n"
            "      - 3\n"
            "    -\n"
            "      k = 4\n");
}

TEST(TableText, ShowsValuesAsTheTableDoes) {
  EXPECT_EQ(textOf({}, {{"a", 72.0}, {"b", true}, {"c", 0.25}}), "a = 72\nb = 1\nc = 0.25\n");
  EXPECT_EQ(textOf({}, {{"d", model::Date{1538316191}}}), "d = 9/30/18, 2:03:11 PM\n");
  EXPECT_EQ(textOf({}, {{"e", Data{'a', 'b', 'c'}}}), "e = abc\n");
  EXPECT_EQ(textOf({}, {{"f", Data{0xFF, 0xFE}}}), "f = <fffe>\n");
  EXPECT_EQ(textOf({}, {{"g", model::Value()}}), "g = \n");
}

}  // namespace
}  // namespace lumifact::tool
