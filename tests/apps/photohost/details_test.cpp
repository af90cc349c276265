// SPDX-License-Identifier: MIT
//
// The details of photos and videos in the application, as a user meets them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/apps/photohost/host_run.h"

namespace photohost {
namespace {

namespace fs = std::filesystem;
using testing::Contains;

std::string pressPhoto() {
  return "long-press 187 333\nwait 1\n";
}

// A library in the phone's own place: the camera roll below the device root.
std::string cameraRoll(const Host& host) {
  const std::string folder = host.root() + "/var/mobile/Media/DCIM";
  fs::create_directories(folder + "/100APPLE");
  fs::copy_file(sampleLibrary() + "/100APPLE/IMG_0001.JPG", folder + "/100APPLE/IMG_0001.JPG");
  return folder;
}

bool showsReport(const Json& screen) {
  const Json top = screen["presentation"].back();
  return top == "LFPresenter" || top == "LumifactViewController";
}

TEST(Details, TheInfoButtonShowsTheTextReport) {
  Host host;
  host.run(setting("viewType 1") + "open item 1\nwait 1\n" + pressInfo + "dump page.json\n");
  const Json page = host.dumped("page");
  EXPECT_EQ(page["presentation"].back(), "LFPresenter");
  ASSERT_EQ(nodesOfClass(page, "UITextView").size(), 1U);
  EXPECT_EQ(page["navigation"]["left"][0]["title"], "Dismiss");
  EXPECT_EQ(page["navigation"]["right"][0]["title"], "Select All");
}

TEST(Details, ViewTypeTwoShowsTheTableOfAPhoto) {
  Host host;
  host.library(cameraRoll(host));
  host.run(setting("viewType 2") + "open item 0\nwait 1\n" + pressInfo + "dump page.json\n");
  const Json page = host.dumped("page");
  EXPECT_EQ(page["navigation"]["title"], "IMG_0001.JPG");
  const auto cells = nodesOfClass(page, "UITableViewCell");
  ASSERT_GE(cells.size(), 6U);
  const std::pair<const char*, const char*> titles[] = {{"FilePath", "100APPLE/IMG_0001.JPG"},
                                                        {"FileDate", nullptr},
                                                        {"FileSize", nullptr},
                                                        {"AssetHeight", nullptr},
                                                        {"AssetWidth", nullptr}};
  for (std::size_t row = 0; row < std::size(titles); ++row) {
    EXPECT_EQ(cells[row]["text"], titles[row].first);
    if (titles[row].second) {
      EXPECT_EQ(cells[row]["detail"], titles[row].second);
    }
  }
}

TEST(Details, AVideoIsShownAsTextWhateverTheViewType) {
  Host host;
  host.library(sampleLibrary() + "/Shared trip");
  host.run(setting("viewType 2") + "open photos\nopen item 0\nwait 1\ndump one.json\n");
  host.run(setting("viewType 2") + "open item 2\nwait 1\n" + pressInfo + "dump page.json\n");
  const Json page = host.dumped("page");
  const auto texts = textsOf(page);
  const bool isVideo = std::ranges::any_of(
      texts, [](const std::string& text) { return text.find(".mp4\n") != std::string::npos; });
  EXPECT_EQ(nodesOfClass(page, "UITextView").size(), isVideo ? 1U : 0U);
}

TEST(Details, APhotoOfTheCameraRollHasThePathThatItsOwnerKnows) {
  Host host;
  host.library(cameraRoll(host));
  host.run(setting("viewType 1") + "open item 0\nwait 1\n" + pressInfo +
           "expect \"100APPLE/IMG_0001.JPG\"\ndump page.json\n");
  const std::string text = nodesOfClass(host.dumped("page"), "UITextView")[0]["text"];
  EXPECT_TRUE(text.starts_with("100APPLE/IMG_0001.JPG\nFile Date: ")) << text.substr(0, 60);
}

TEST(Details, WithoutTheButtonTheLongPressStillWorks) {
  Host host;
  host.run(setting("useNavigationButton false") + setting("useLongPressPhoto true") +
           "open item 1\nwait 1\ndump photo.json\n" + pressPhoto() + "dump page.json\n");
  EXPECT_EQ(customButtons(host.dumped("photo")), 0);
  EXPECT_TRUE(showsReport(host.dumped("page")));
}

TEST(Details, WithoutTheLongPressNothingComesOfOne) {
  Host host;
  host.run("open item 1\nwait 1\n" + setting("useLongPressPhoto false") + pressPhoto() +
           "dump page.json\n");
  EXPECT_FALSE(showsReport(host.dumped("page")));
}

TEST(Details, TheButtonIsThereOnceHoweverManyPhotosAreSeen) {
  Host host;
  std::string script = "open item 1\nwait 1\n";
  for (int page = 0; page < 4; ++page)
    script += "touch-down 300 333\ntouch-move 250 333\ntouch-move 100 333\ntouch-up\nwait 1\n";
  host.run(script + "dump photo.json\nback\nwait 1\nopen item 2\nwait 1\ndump again.json\n");
  EXPECT_EQ(customButtons(host.dumped("photo")), 1);
  EXPECT_EQ(customButtons(host.dumped("again")), 1);
  const auto tiling = nodesOfClass(host.dumped("photo"), "PUTilingView");
  ASSERT_EQ(tiling.size(), 1U);
  int longPresses = 0;
  for (const Json& gesture : tiling[0]["gestures"])
    longPresses += gesture["class"] == "UILongPressGestureRecognizer";
  EXPECT_EQ(longPresses, 1);
}

TEST(Details, APreviewHasNoButtonAndTheNextPhotoHasOne) {
  Host host;
  host.run(
      "peek item 1\nwait 1\ndump peek.json\nback\nwait 1\nopen item 1\nwait 1\n"
      "dump photo.json\n");
  EXPECT_EQ(customButtons(host.dumped("peek")), 0);
  EXPECT_EQ(customButtons(host.dumped("photo")), 1);
}

TEST(Details, ThePageDismissesAndComesAgain) {
  Host host;
  host.run(std::string("open item 1\nwait 1\n") + pressInfo + "tap \"Dismiss\"\nwait 1\n" +
           "dump photo.json\n" + pressInfo + "dump page.json\n");
  EXPECT_FALSE(showsReport(host.dumped("photo")));
  EXPECT_TRUE(showsReport(host.dumped("page")));
}

TEST(Details, ThePlaceOpensInTheMapService) {
  Host host;
  host.library(cameraRoll(host));
  host.run(setting("mapType 1") + "open item 0\nwait 1\n" + pressInfo + "dump page.json\n" +
           "tap 262 42\nwait 0.5\ndump after.json\n");
  const std::string link = toolOutput("map-link --root '" + host.root() + "' '" + sampleLibrary() +
                                      "/100APPLE/IMG_0001.JPG'");
  const Json page = host.dumped("page");
  ASSERT_FALSE(link.empty());
  EXPECT_EQ(page["navigation"]["right"].size(), 3U);
  EXPECT_EQ(page["navigation"]["right"][1]["width"], 8.0);
  EXPECT_EQ(page["navigation"]["right"][2]["systemItem"], 11);
  EXPECT_EQ(host.dumped("after")["opened"], Json::array({link.substr(0, link.size() - 1)}));
}

TEST(Details, SelectingAllAndCopyingTakesTheWholeText) {
  Host host;
  host.run(setting("viewType 1") + "open item 1\nwait 1\n" + pressInfo +
           "tap \"Select All\"\nwait 0.5\nexpect \" Deselect\"\ndump page.json\ntype copy\n"
           "tap \" Deselect\"\nwait 0.5\nexpect \"Select All\"\ndump clear.json\n");
  const Json view = nodesOfClass(host.dumped("page"), "UITextView")[0];
  const std::string text = view["text"];
  EXPECT_EQ(view["selectedRange"][0], 0);
  EXPECT_GT(view["selectedRange"][1], 100);
  const Json cleared = nodesOfClass(host.dumped("clear"), "UITextView")[0];
  EXPECT_TRUE(!cleared.contains("selectedRange") || cleared["selectedRange"][1] == 0);
}

TEST(Details, ARowIsSharedThroughItsEditMenu) {
  Host host;
  host.library(cameraRoll(host));
  host.run(setting("viewType 2") + "open item 0\nwait 1\n" + pressInfo +
           "long-press \"FilePath\"\nwait 0.5\ndump menu.json\nmenu \"Copy\"\nwait 1\n"
           "dump sheet.json\n");
  EXPECT_EQ(host.dumped("menu")["menu"], Json::array({"Copy"}));
  EXPECT_EQ(host.dumped("sheet")["sheet"]["items"],
            Json::array({"FilePath = 100APPLE/IMG_0001.JPG"}));
}

TEST(Details, TheShareSheetCanBeCancelledAndComeAgain) {
  Host host;
  host.run(setting("viewType 2") + "open item 1\nwait 1\n" + pressInfo +
           "long-press \"FilePath\"\nwait 0.5\nmenu \"Copy\"\nwait 1\ntap \"Cancel\"\nwait 1\n"
           "dump page.json\nlong-press \"FileSize\"\nwait 0.5\nmenu \"Copy\"\nwait 1\n"
           "tap \"Copy\"\nwait 1\ndump again.json\n");
  EXPECT_TRUE(host.dumped("page")["sheet"].is_null());
  EXPECT_TRUE(host.dumped("again")["sheet"].is_null());
}

TEST(Details, AnEntryWithEntriesOpensAPageOfItsOwn) {
  Host host;
  host.library(cameraRoll(host)).size(375, 2'000);
  host.run(setting("viewType 2") + "open item 0\nwait 1\n" + pressInfo +
           "tap \"{Exif}\"\nwait 1\ndump page.json\nback\nwait 1\ndump top.json\n");
  const Json page = host.dumped("page");
  EXPECT_EQ(page["navigation"]["title"], "{Exif}");
  EXPECT_TRUE(page["navigation"]["left"].empty());
  EXPECT_THAT(textsOf(page), Contains("ExposureTime"));
  EXPECT_EQ(host.dumped("top")["navigation"]["title"], "IMG_0001.JPG");
}

TEST(Details, ThePageTakesOverTheBarsLook) {
  Host host;
  host.run("open item 1\nwait 1\ndump photo.json\n" + std::string(pressInfo) + "dump page.json\n");
  const Json photo = host.dumped("photo")["navigation"];
  const Json page = host.dumped("page")["navigation"];
  EXPECT_EQ(page["barStyle"], photo["barStyle"]);
  EXPECT_EQ(page["tintColor"], photo["tintColor"]);
}

}  // namespace
}  // namespace photohost
