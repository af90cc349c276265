// SPDX-License-Identifier: MIT
#include "lumifact/state/settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "model/description.h"

namespace lumifact {
namespace {

using model::Array;
using model::Data;
using model::Date;
using model::Dictionary;
using model::Value;

Settings settingsOf(const Dictionary& file) {
  return settingsFromFile(&file);
}

TEST(SettingsTest, aMissingFileGivesTheDefaultsOfAMissingFile) {
  const Settings settings = settingsFromFile(nullptr);
  EXPECT_TRUE(settings.useNavigationButton);
  EXPECT_TRUE(settings.useLongPressPhoto);
  EXPECT_FALSE(settings.showSelectedSize);
  EXPECT_EQ(settings.thumbnailInfoDisplay, 1);
  EXPECT_TRUE(settings.thumbnailInfoDisplaySolid);
  EXPECT_EQ(settings.thumbnailQuickInfo, 0);
  EXPECT_EQ(settings.mapType, 0);
  EXPECT_EQ(settings.mapZoomLevel, 19.0);
  EXPECT_EQ(settings.mapViewType, 0);
  EXPECT_EQ(settings.fontSize, 12);
  EXPECT_EQ(settings.viewType, 1);
  EXPECT_FALSE(settings.useGridSizeButton);
}

TEST(SettingsTest, aFileWithoutTheKeysDiffersInTheZoomOnly) {
  Settings expected = settingsFromFile(nullptr);
  expected.mapZoomLevel = 0.0;
  EXPECT_EQ(settingsOf({}), expected);
  EXPECT_EQ(settingsOf({{"anotherKey", 5}}), expected);
}

TEST(SettingsTest, theRowsStandInTheOrderInWhichTheyAreRead) {
  std::vector<std::string_view> keys;
  for (const SettingRow& row : settingRows()) keys.push_back(row.key);
  EXPECT_THAT(keys,
              testing::ElementsAre("useNavigationButton", "useLongPressPhoto", "showSelectedSize",
                                   "thumbnailInfoDisplay", "thumbnailInfoDisplaySolid",
                                   "thumbnailInfoDisplayOneLine", "thumbnailQuickInfo", "mapType",
                                   "mapZoomLevel", "mapViewType", "fontSize", "viewType",
                                   "useGridSizeButton"));
}

TEST(SettingsTest, everyKeyReachesItsOwnValue) {
  for (const SettingRow& row : settingRows()) {
    if (row.key == "thumbnailInfoDisplaySolid" || row.key == "thumbnailInfoDisplayOneLine") {
      continue;
    }
    const bool turnedOn = row.defaultForAbsentKey == 0;
    const Value given = row.kind == SettingKind::flag      ? Value(turnedOn)
                        : row.kind == SettingKind::integer ? Value(7)
                                                           : Value(7.5);
    const Settings settings = settingsOf({{std::string(row.key), given}});
    EXPECT_EQ(settingValue(settings, row.key), given) << row.key;
    for (const SettingRow& other : settingRows()) {
      if (other.key == row.key) continue;
      EXPECT_EQ(settingValue(settings, other.key), settingValue(settingsOf({}), other.key))
          << row.key << " changed " << other.key;
    }
  }
}

TEST(SettingsTest, aKeyThatIsDeletedFallsBackToTheDefaultForAnAbsentKey) {
  Dictionary file = {{"mapZoomLevel", 12.5}, {"fontSize", 20}, {"useGridSizeButton", true}};
  EXPECT_EQ(settingsOf(file).fontSize, 20);
  file.clear();
  EXPECT_EQ(settingsOf(file).mapZoomLevel, 0.0);
  EXPECT_EQ(settingsOf(file).fontSize, 12);
  EXPECT_FALSE(settingsOf(file).useGridSizeButton);
}

TEST(SettingsTest, theSolidBackgroundIsForcedOn) {
  for (const Value& value : {Value(false), Value(0), Value("NO"), Value(Array{})}) {
    const Settings settings = settingsOf({{"thumbnailInfoDisplaySolid", value}});
    EXPECT_TRUE(settings.thumbnailInfoDisplaySolid) << model::valueText(value);
  }
}

TEST(SettingsTest, theOneLineKeyHasNoEffect) {
  for (const Value& value : {Value(false), Value(true), Value(3), Value("YES"), Value(Array{})}) {
    EXPECT_EQ(settingsOf({{"thumbnailInfoDisplayOneLine", value}}), settingsOf({}))
        << model::valueText(value);
  }
  EXPECT_TRUE(settingValue(settingsOf({}), "thumbnailInfoDisplayOneLine").isNull());
}

TEST(SettingsTest, flagsAreReadFromNumbersAndTexts) {
  const struct {
    Value value;
    bool expected;
  } cases[] = {
      {true, true}, {false, false},   {1, true},      {0, false},    {-3, true},
      {0.5, true},  {0.0, false},     {"YES", true},  {"no", false}, {"true", true},
      {"1", true},  {"  +007", true}, {"000", false}, {"", false},   {"abc", false},
  };
  for (const auto& row : cases) {
    EXPECT_EQ(settingsOf({{"showSelectedSize", row.value}}).showSelectedSize, row.expected)
        << model::valueText(row.value);
  }
}

TEST(SettingsTest, integersAreReadFromNumbersAndTexts) {
  const struct {
    Value value;
    std::int32_t expected;
  } cases[] = {
      {14, 14},
      {0, 0},
      {-5, -5},
      {"16", 16},
      {" 16 points", 16},
      {"99999999999", std::numeric_limits<std::int32_t>::max()},
      {"-99999999999", std::numeric_limits<std::int32_t>::min()},
      {"text", 0},
      {"", 0},
      {std::int64_t{3'000'000'000}, -1294967296},
      {12.9, 12},
      {-12.9, -12},
      {1e20, std::numeric_limits<std::int32_t>::max()},
      {std::numeric_limits<double>::quiet_NaN(), 0},
      {true, 1},
      {false, 0},
  };
  for (const auto& row : cases) {
    EXPECT_EQ(settingsOf({{"fontSize", row.value}}).fontSize, row.expected)
        << model::valueText(row.value);
  }
}

TEST(SettingsTest, theZoomIsWidenedFromSinglePrecision) {
  const struct {
    Value value;
    double expected;
  } cases[] = {
      {12.5, 12.5}, {0.1, static_cast<double>(0.1F)}, {"17.25", 17.25}, {15, 15.0}, {true, 1.0},
      {"far", 0.0},
  };
  for (const auto& row : cases) {
    EXPECT_EQ(settingsOf({{"mapZoomLevel", row.value}}).mapZoomLevel, row.expected)
        << model::valueText(row.value);
  }
}

TEST(SettingsTest, valuesWithoutAConversionCountAsAbsent) {
  const Value others[] = {Value(), Value(Array{1}), Value(Dictionary{{"a", 1}}), Value(Data{1, 2}),
                          Value(Date{1e9})};
  for (const SettingRow& row : settingRows()) {
    for (const Value& value : others) {
      EXPECT_EQ(settingsOf({{std::string(row.key), value}}), settingsOf({}))
          << row.key << " = " << model::valueText(value);
    }
  }
}

TEST(SettingsTest, nothingIsRangeChecked) {
  const Settings settings =
      settingsOf({{"mapType", 77}, {"viewType", -1}, {"fontSize", -4}, {"mapViewType", 99}});
  EXPECT_EQ(settings.mapType, 77);
  EXPECT_EQ(settings.viewType, -1);
  EXPECT_EQ(settings.fontSize, -4);
  EXPECT_EQ(settings.mapViewType, 99);
}

TEST(SettingsTest, shownValuesKeepTheirKinds) {
  const Settings settings;
  EXPECT_EQ(settingValue(settings, "useNavigationButton"), Value(true));
  EXPECT_EQ(settingValue(settings, "fontSize"), Value(12));
  EXPECT_EQ(settingValue(settings, "mapZoomLevel"), Value(19.0));
  EXPECT_TRUE(settingValue(settings, "noSuchKey").isNull());
}

TEST(SettingsTest, theInfoLineIsOnePointHigherThanItsRoundedText) {
  EXPECT_EQ(infoLineHeightFor(14.32), 16.0);
  EXPECT_EQ(infoLineHeightFor(14.0), 15.0);
  EXPECT_EQ(infoLineHeightFor(0.0), 1.0);
}

}  // namespace
}  // namespace lumifact
