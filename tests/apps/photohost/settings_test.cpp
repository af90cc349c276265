// SPDX-License-Identifier: MIT
//
// The settings screen by itself and by what the extension then does, as scripts drive both.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "foundation/property_lists/property_list.h"
#include "tests/apps/photohost/host_run.h"

namespace photohost {
namespace {

using testing::Contains;
using testing::IsEmpty;
using testing::Not;
using testing::Pair;
using testing::SizeIs;

constexpr char openSettings[] = "open settings\nwait 1\n";
constexpr char openCityAlbum[] = "tap \"Done\"\nwait 1\nopen album City\nwait 1\n";

// Which switches on the screen are on, by their rows' labels.
std::map<std::string, bool> switchesOn(const Json& screen) {
  std::map<std::string, bool> all;
  for (const Json& each : nodesOfClass(screen, "UISwitch")) all[each["name"]] = each["on"];
  return all;
}

class SettingsTest : public testing::Test {
 protected:
  // What the extension's preference file holds; null where there is none.
  model::Value stored() const {
    const auto list = foundation::readPropertyList(
        host.root() + "/var/mobile/Library/Preferences/net.korvu.lumifact.plist");
    return list ? list->root : model::Value();
  }

  Host host;
};

TEST_F(SettingsTest, TheGearShowsThePageOfTheLoadedExtension) {
  host.run("open albums\nwait 1\ntap \"Settings\"\nwait 1\ndump page.json\n");
  const Json screen = host.dumped("page");
  EXPECT_EQ(screen["navigation"]["title"], "Lumifact");
  EXPECT_THAT(nodesOfClass(screen, "UISwitch"), Not(IsEmpty()));
  EXPECT_TRUE(stored().isNull()) << "looking stores nothing";
}

TEST_F(SettingsTest, WithoutTheExtensionThereAreNone) {
  host.withoutExtensions();
  host.run(std::string(openSettings) + "expect \"No extension has settings here.\"\n");
}

TEST_F(SettingsTest, ASwitchPutsTheSizeButtonIntoAlbums) {
  host.run(std::string(openSettings) + "scroll 300\ntap \"Size Button in Albums\"\nwait 1\n" +
           openCityAlbum + "expect \"G\"\ndump on.json\nback\nwait 1\n" + openSettings +
           "scroll 300\ntap \"Size Button in Albums\"\nwait 1\n" + openCityAlbum +
           "dump off.json\n");
  EXPECT_THAT(textsOf(host.dumped("on")), Contains("G"));
  EXPECT_THAT(textsOf(host.dumped("off")), Not(Contains("G")));
  EXPECT_EQ(stored(), model::Value(model::Dictionary{{"useGridSizeButton", false}}));
}

TEST_F(SettingsTest, AListChangesWhatCaptionsSay) {
  host.run(std::string(openSettings) + "scroll 300\ntap \"Captions\"\nwait 1\n" +
           "tap \"Pixels and File Size\"\nwait 1\nback\nwait 1\n" +
           "expect \"Pixels and File Size\"\n" + openCityAlbum + "dump grid.json\n");
  EXPECT_EQ(stored(), model::Value(model::Dictionary{{"thumbnailInfoDisplay", 3}}));
  EXPECT_THAT(textsOf(host.dumped("grid")), Contains(testing::MatchesRegex("[0-9]+x[0-9]+, .*B")));
}

TEST_F(SettingsTest, SegmentsChangeTheReport) {
  host.run(std::string(openSettings) + "tap \"Table\"\nwait 1\ntap \"Done\"\nwait 1\n" +
           "open item 4\nwait 1\n" + pressInfo + "dump table.json\n");
  EXPECT_EQ(stored(), model::Value(model::Dictionary{{"viewType", 2}}));
  EXPECT_THAT(nodesOfClass(host.dumped("table"), "UITableView"), SizeIs(1));
}

TEST_F(SettingsTest, TheSliderOfTheZoomStoresAReal) {
  host.run(std::string(openSettings) + "scroll 1000\nslide \"Map Zoom\" 0.5\nwait 1\n" +
           "dump zoom.json\n");
  const Json slider = nodesOfClass(host.dumped("zoom"), "UISlider").at(0);
  EXPECT_EQ(slider["name"], "Map Zoom");
  EXPECT_EQ(
      stored(),
      model::Value(model::Dictionary{{"mapZoomLevel", static_cast<double>(slider["value"])}}));
  EXPECT_NEAR(slider["value"], 10.5, 0.5);
}

TEST_F(SettingsTest, TheScreenFollowsWhatOthersStore) {
  host.run(setting("useNavigationButton false") + openSettings + "dump page.json\n");
  EXPECT_THAT(switchesOn(host.dumped("page")), Contains(Pair("Details Button", false)));
}

TEST_F(SettingsTest, AFileThatCannotBeWrittenIsTold) {
  std::filesystem::create_directories(host.root() +
                                      "/var/mobile/Library/Preferences/net.korvu.lumifact.plist");
  host.run(std::string(openSettings) + "dump before.json\ntap \"Details Button\"\nwait 1\n" +
           "expect \"Not Saved\"\ntap \"OK\"\nwait 1\ndump after.json\n");
  EXPECT_THAT(switchesOn(host.dumped("before")), Contains(Pair("Details Button", true)));
  EXPECT_EQ(switchesOn(host.dumped("after")), switchesOn(host.dumped("before")));
}

}  // namespace
}  // namespace photohost
