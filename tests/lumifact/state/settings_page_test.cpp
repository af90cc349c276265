// SPDX-License-Identifier: MIT
//
// The page of settings beside the settings' own table: what it offers is what is read.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "desktop/settings/page_reader.h"
#include "lumifact/state/settings.h"

namespace lumifact {
namespace {

using desktop::settings::Row;
using desktop::settings::RowKind;

// What no switch would change: one is forced, the other read and dropped.
const std::set<std::string_view> deadKeys = {"thumbnailInfoDisplaySolid",
                                             "thumbnailInfoDisplayOneLine"};

class SettingsPageTest : public testing::Test {
 protected:
  SettingsPageTest() {
    const auto read = desktop::settings::readPage(SETTINGS_PAGE);
    if (!read) {
      ADD_FAILURE() << SETTINGS_PAGE << ": " << read.error().reason;
      return;
    }
    page = *read;
    for (const auto& group : page.groups)
      rows.insert(rows.end(), group.rows.begin(), group.rows.end());
  }

  const Row* rowOf(std::string_view key) const {
    const auto found =
        std::ranges::find_if(rows, [key](const Row& row) { return row.place.key == key; });
    return found == rows.end() ? nullptr : &*found;
  }
  // What the settings are where the file holds one value.
  static Settings settingsWith(const Row& row, const model::Value& value) {
    const model::Dictionary file{{row.place.key, value}};
    return settingsFromFile(&file);
  }

  desktop::settings::Page page;
  std::vector<Row> rows;
};

TEST_F(SettingsPageTest, HasARowForEveryKeyThatHasAnEffect) {
  EXPECT_EQ(rows.size(), settingRows().size() - deadKeys.size());
  for (const SettingRow& setting : settingRows())
    EXPECT_EQ(rowOf(setting.key) != nullptr, !deadKeys.contains(setting.key)) << setting.key;
}

TEST_F(SettingsPageTest, WritesTheFileAndTellsAsTheSettingsListen) {
  for (const Row& row : rows) {
    EXPECT_EQ("/var/mobile/Library/Preferences/" + row.place.domain + ".plist", settingsPath);
    EXPECT_EQ(row.place.notification, settingsChangedNotification) << row.place.key;
  }
}

TEST_F(SettingsPageTest, ShowsTheDefaultsOfAbsentKeys) {
  for (const SettingRow& setting : settingRows()) {
    const Row* const row = rowOf(setting.key);
    if (!row) continue;
    EXPECT_EQ(desktop::settings::numberOf(row->standard), setting.defaultForAbsentKey)
        << setting.key;
  }
}

TEST_F(SettingsPageTest, WritesValuesOfTheSettingsOwnKinds) {
  using enum model::Kind;
  for (const SettingRow& setting : settingRows()) {
    const Row* const row = rowOf(setting.key);
    if (!row) continue;
    const bool isFlag = setting.kind == SettingKind::flag;
    const bool isReal = setting.kind == SettingKind::real;
    EXPECT_EQ(row->kind == RowKind::toggle, isFlag) << setting.key;
    EXPECT_EQ(row->kind == RowKind::slider, isReal) << setting.key;
    EXPECT_EQ(row->standard.kind(), isFlag ? boolean : isReal ? real : integer) << setting.key;
    for (const auto& choice : row->choices)
      EXPECT_EQ(choice.value.kind(), integer) << setting.key << " " << choice.title;
  }
}

// No two choices are one to the settings.
TEST_F(SettingsPageTest, EachChoiceMakesAnotherSetting) {
  for (const Row& row : rows)
    for (std::size_t one = 0; one < row.choices.size(); ++one)
      for (std::size_t other = 0; other < one; ++other)
        EXPECT_NE(settingsWith(row, row.choices[one].value),
                  settingsWith(row, row.choices[other].value))
            << row.place.key;
}

TEST_F(SettingsPageTest, SaysWhatHoldsUntilAnythingIsSet) {
  const Row* const zoom = rowOf("mapZoomLevel");
  ASSERT_TRUE(zoom);
  EXPECT_EQ(desktop::settings::shownText(*zoom, zoom->standard), "0");
  EXPECT_GE(zoom->range.greatest, Settings{}.mapZoomLevel);
  EXPECT_THAT(page.groups.back().footer, testing::HasSubstr("links carry zoom 19"));
  EXPECT_EQ(page.groups.back().rows.front().place.key, "mapZoomLevel");
}

TEST_F(SettingsPageTest, EveryGroupAndRowHasATitle) {
  EXPECT_EQ(page.title, "Lumifact");
  for (const auto& group : page.groups) EXPECT_NE(group.header, "");
  for (const Row& row : rows) EXPECT_NE(row.label, "") << row.place.key;
}

}  // namespace
}  // namespace lumifact
