// SPDX-License-Identifier: MIT
#include "desktop/settings/preferences.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "foundation/notification_core.h"
#include "foundation/property_lists/property_list.h"
#include "tests/support/temporary_folder.h"

namespace desktop::settings {
namespace {

using testing::HasSubstr;

class PreferencesTest : public testing::Test {
 protected:
  model::Value stored() const {
    const auto list = foundation::readPropertyList(file);
    return list ? list->root : model::Value();
  }
  void write(const model::Dictionary& entries) {
    const auto bytes =
        foundation::serializePropertyList(entries, foundation::PropertyListFormat::xml);
    folder.write("var/mobile/Library/Preferences/com.example.sample.plist", *bytes);
  }

  support::TemporaryFolder folder;
  foundation::DeviceRoot root{folder.path()};
  const std::string file = preferenceFile(root, "com.example.sample");
  Preferences preferences{root};
  const Row row{.kind = RowKind::toggle,
                .place = {"com.example.sample", "isOn", "com.example.sample/changed"},
                .standard = true};
};

TEST_F(PreferencesTest, WhatIsNotStoredIsShownAsTheRowHasItAndStaysUnstored) {
  EXPECT_EQ(preferences.valueOf(row), model::Value(true));
  EXPECT_FALSE(std::filesystem::exists(file));
  write({{"other", 1}});
  preferences.refresh();
  EXPECT_EQ(preferences.valueOf(row), model::Value(true));
  EXPECT_EQ(stored(), model::Value(model::Dictionary{{"other", 1}}));
}

TEST_F(PreferencesTest, WhatIsStoredIsShown) {
  write({{"isOn", false}});
  EXPECT_EQ(preferences.valueOf(row), model::Value(false));
  write({{"isOn", "other"}});
  EXPECT_EQ(preferences.valueOf(row), model::Value(false)) << "the file is read once";
  preferences.refresh();
  EXPECT_EQ(preferences.valueOf(row), model::Value("other"));
}

TEST_F(PreferencesTest, WhatHasNoMeaningIsAsGoodAsAbsent) {
  for (const model::Value& value :
       {model::Value(model::Array{1}), model::Value(model::Data{1}), model::Value(model::Date{})}) {
    write({{"isOn", value}});
    preferences.refresh();
    EXPECT_EQ(preferences.valueOf(row), model::Value(true));
  }
}

TEST_F(PreferencesTest, ARowWithoutAKeyShowsItsOwnValue) {
  EXPECT_EQ(preferences.valueOf({.kind = RowKind::value, .standard = "1.0"}), model::Value("1.0"));
}

TEST_F(PreferencesTest, StoresAValueAsItIsTyped) {
  for (const model::Value& value :
       {model::Value(false), model::Value(2), model::Value(2.0), model::Value("2")}) {
    EXPECT_FALSE(preferences.store(row.place, value));
    EXPECT_EQ(stored(), model::Value(model::Dictionary{{"isOn", value}}));
    EXPECT_EQ(preferences.valueOf(row), value);
  }
}

TEST_F(PreferencesTest, KeepsWhatElseTheFileHolds) {
  write({{"other", 1}});
  EXPECT_FALSE(preferences.store(row.place, false));
  EXPECT_EQ(stored(), model::Value(model::Dictionary{{"isOn", false}, {"other", 1}}));
}

TEST_F(PreferencesTest, PostsTheNotificationOnceTheValueIsThere) {
  foundation::NotificationCentre centre(foundation::notificationFolder(root.folder()));
  std::vector<model::Value> seen;
  ASSERT_TRUE(centre.addObserver("com.example.sample/changed",
                                 [&](std::string_view) { seen.push_back(stored()); }));
  EXPECT_FALSE(preferences.store(row.place, false));
  centre.deliver();
  EXPECT_THAT(seen, testing::ElementsAre(model::Value(model::Dictionary{{"isOn", false}})));
}

TEST_F(PreferencesTest, AFileThatCannotBeReadIsLeftAsItIs) {
  folder.write("var/mobile/Library/Preferences/com.example.sample.plist", "damaged");
  EXPECT_EQ(preferences.valueOf(row), model::Value(true));
  const auto failed = preferences.store(row.place, false);
  ASSERT_TRUE(failed);
  EXPECT_THAT(failed->reason, HasSubstr("com.example.sample.plist: left as it is"));
  EXPECT_EQ(preferences.valueOf(row), model::Value(true));
  EXPECT_EQ(support::contentsOf(file), "damaged");
}

TEST_F(PreferencesTest, AFailedAnnouncementIsToldAndTheValueStays) {
  const Place place{"com.example.sample", "isOn", std::string(300, 'a')};
  const auto failed = preferences.store(place, false);
  ASSERT_TRUE(failed);
  EXPECT_THAT(failed->reason, HasSubstr("written, but not announced: "));
  EXPECT_EQ(preferences.valueOf(row), model::Value(false));
}

}  // namespace
}  // namespace desktop::settings
