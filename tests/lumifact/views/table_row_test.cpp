// SPDX-License-Identifier: MIT
#include "lumifact/views/table_row.h"

#include "model/description.h"
#include "tests/lumifact/views/foundation_test.h"

namespace lumifact {
namespace {

using bridge::NSString;
using bridge::Object;
using model::Array;
using model::Dictionary;

class TableRowTest : public FoundationTest {
 protected:
  TableRow row(Object data, NSInteger index) { return tableRow(data, _keys, index, text("Page")); }
  std::string titles(const Dictionary& entries) {
    const Object data = objects(entries);
    std::string all;
    for (NSUInteger index = 0; index < rowCount(data); ++index)
      all.append(row(data, static_cast<NSInteger>(index)).title.utf8()).append(" ");
    return all;
  }

 private:
  SortedKeys _keys;
};

TEST_F(TableRowTest, CountsScalarsAsOneAndContainersByTheirElements) {
  const std::pair<model::Value, NSUInteger> cases[] = {
      {"text", 1},
      {"", 1},
      {3, 1},
      {model::Date{}, 1},
      {model::Data{}, 1},
      {Array{}, 0},
      {Array{1, 2}, 2},
      {Dictionary{}, 0},
      {Dictionary{{"a", 1}}, 1},
      {{}, 0},
  };
  for (const auto& [value, count] : cases)
    EXPECT_EQ(rowCount(objects(value)), count) << model::valueText(value);
  EXPECT_EQ(rowCount(Object()), 0U);
}

TEST_F(TableRowTest, KeysComeInTheirShownOrderWhateverTheirCase) {
  EXPECT_EQ(titles({{"b", 1}, {"A", 2}, {"c", 3}}), "A b c ");
  EXPECT_EQ(titles({{"{Exif}", 1}, {"Depth", 2}, {"DPIWidth", 3}, {"_x", 4}}),
            "_x {Exif} Depth DPIWidth ");
}

TEST_F(TableRowTest, RecordKeysLoseTheirFirstEightCharacters) {
  EXPECT_EQ(titles({{"LF742J05AssetWidth", "4"},
                    {"LF742J03FileSize", "3"},
                    {"LF742J01FilePath", "1"},
                    {"LF742J04AssetHeight", "4"},
                    {"LF742J02FileDate", "2"}}),
            "FilePath FileDate FileSize AssetHeight AssetWidth ");
}

TEST_F(TableRowTest, KeysThatOnlyResembleRecordKeysStayOrBecomeEmpty) {
  EXPECT_EQ(titles({{"LF742J", 1}, {"LF742K01Other", 2}, {"xLF742J01", 3}}),
            "LF742J LF742K01Other xLF742J01 ");
  EXPECT_EQ(titles({{"LF742J01", 1}}), " ");
}

TEST_F(TableRowTest, EntriesTellKeyTextAndValue) {
  const TableRow found = row(objects(Dictionary{{"Width", 3}, {"Make", "Maker"}}), 1);
  EXPECT_EQ(found.title.utf8(), "Width");
  EXPECT_EQ(found.detail.utf8(), "3");
  EXPECT_EQ(bridge::toValue(found.value), model::Value(3));
}

TEST_F(TableRowTest, ItemsHaveNoTitle) {
  const TableRow found = row(objects(Array{"first", Dictionary{{"a", 1}}}), 1);
  EXPECT_FALSE(found.title);
  EXPECT_FALSE(found.detail);
  EXPECT_EQ(bridge::toValue(found.value), model::Value(Dictionary{{"a", 1}}));
}

TEST_F(TableRowTest, ASingleValueShowsThePagesTitleAndNothingElse) {
  for (const model::Value& value : {model::Value("text"), model::Value(3),
                                    model::Value(model::Date{}), model::Value(model::Data{1})}) {
    const TableRow found = row(objects(value), 0);
    EXPECT_EQ(found.title.utf8(), "Page") << model::valueText(value);
    EXPECT_FALSE(found.detail) << model::valueText(value);
    EXPECT_FALSE(found.value) << model::valueText(value);
  }
}

TEST_F(TableRowTest, WhatIsUnknownHasAnEmptyRow) {
  for (const Object data : {Object(), objects({})}) {
    const TableRow found = row(data, 0);
    EXPECT_FALSE(found.title);
    EXPECT_FALSE(found.detail);
    EXPECT_FALSE(found.value);
  }
}

struct SharedCase {
  model::Value data;
  NSInteger index;
  const char* expected;
};

TEST_F(TableRowTest, IsSharedWithItsRawValue) {
  const SharedCase cases[] = {
      {Dictionary{{"Width", 3}}, 0, "Width = 3"},
      {Dictionary{{"When", model::Date{1538309000}}}, 0, "When = 2018-09-30 12:03:20 +0000"},
      {Dictionary{{"Bytes", model::Data{'a', 'b', 'c'}}}, 0, "Bytes = <616263>"},
      {Dictionary{{"Area", Array{1, 2}}}, 0, "Area = (\n    1,\n    2\n)"},
      {Array{"sea"}, 0, "(null) = sea"},
      {"alone", 0, "Page = (null)"},
      {{}, 0, "(null) = (null)"},
  };
  for (const auto& [data, index, expected] : cases)
    EXPECT_EQ(sharedText(row(objects(data), index)).utf8(), expected) << model::valueText(data);
}

TEST_F(TableRowTest, KeysAreSortedOnceForADictionary) {
  SortedKeys keys;
  const bridge::NSDictionary first(objects(Dictionary{{"b", 1}, {"a", 2}}).get());
  const bridge::NSDictionary second(objects(Dictionary{{"z", 1}}).get());
  const bridge::NSArray sorted = keys.of(first);
  EXPECT_EQ(keys.of(first), sorted);
  EXPECT_EQ(NSString(keys.of(second).at(0).get()).utf8(), "z");
  EXPECT_EQ(NSString(keys.of(first).at(0).get()).utf8(), "a");
}

}  // namespace
}  // namespace lumifact
