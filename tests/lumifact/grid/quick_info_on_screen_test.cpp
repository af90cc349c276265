// SPDX-License-Identifier: MIT
//
// The long press in the photo application's own grids.
#include <gmock/gmock.h>

#include <filesystem>

#include "bridge/uikit/gesture_actions.h"
#include "desktop/photos_ui/navigation/navigation.h"
#include "desktop/runtime/debug_log.h"
#include "lumifact/views/lumifact_pop_up_view_controller.h"
#include "tests/lumifact/grid/grid_screen.h"
#include "tests/lumifact/views/shown_views.h"

namespace lumifact {
namespace {

using host::fileCalls;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class QuickInfoOnScreenTest : public GridScreenTest {
 protected:
  QuickInfoOnScreenTest() {
    settings.thumbnailQuickInfo = 1;
    desktop::runtime::setDebugLogSink(
        [this](const auto& line) { lines.push_back(line.message()); });
  }
  ~QuickInfoOnScreenTest() override { desktop::runtime::setDebugLogSink({}); }

  static UIView box() { return viewOf(top().view(), LumifactPopUpViewController::classObject()); }
  static std::string summary() {
    const AutoreleasePool pool;
    return UITextView(viewOf(box(), UITextView::classObject()).get()).text().utf8();
  }
  static UIAlertController alert() {
    return send<UIAlertController, "presentedViewController">(top());
  }
  static void closeBox() {
    const AutoreleasePool pool;
    tap(CGPoint{5, 100});
  }
  static int longPresses() {
    const AutoreleasePool pool;
    int count = 0;
    const NSArray all = collection().gestureRecognizers();
    for (NSUInteger index = 0; index < all.count(); ++index)
      count += sendsAction(all.at(index), selector<"lumifactLongPress:">()) ? 1 : 0;
    return count;
  }

  std::vector<std::string> lines;
};

TEST_F(QuickInfoOnScreenTest, APressShowsTheBoxAndATouchClosesIt) {
  openAlbumOf(3);
  pressItem(1);
  EXPECT_THAT(summary(), testing::StartsWith(folder.file("Album/01.jpg") + "\nFile Date: "));
  EXPECT_THAT(summary(), HasSubstr("\nWidth: 40\nHeight: 30"));
  closeBox();
  const AutoreleasePool pool;
  EXPECT_FALSE(box());
  EXPECT_THAT(lines, IsEmpty());
}

TEST_F(QuickInfoOnScreenTest, TheOtherFormIsAnAlert) {
  settings.thumbnailQuickInfo = 2;
  openAlbumOf(3);
  pressItem(0);
  const AutoreleasePool pool;
  ASSERT_TRUE(alert());
  EXPECT_THAT((send<NSString, "message">(alert()).utf8()), HasSubstr("\n40 x 30"));
  tap(middleOf(labelWith(alert().view(), "Ok")));
  EXPECT_FALSE(alert());
}

TEST_F(QuickInfoOnScreenTest, ALargeFileIsTrueOnTheFirstPressOnly) {
  const struct {
    std::uintmax_t bytes;
    const char* first;
    const char* later;
  } rows[] = {{3'000'000'000, "3 GB", "-1.29 GB"}, {16'000'000'000'000, "16 TB", "1.25 GB"}};
  for (int item = 0; item < 2; ++item)
    addPhoto("Album/" + std::to_string(item) + ".jpg", item, rows[item].bytes);
  openAlbum("Album");
  for (int item = 0; item < 2; ++item) {
    fileCalls() = {};
    for (const char* size : {rows[item].first, rows[item].later, rows[item].later}) {
      pressItem(item);
      EXPECT_THAT(summary(), HasSubstr("File Size: " + std::string(size) + "\n"));
      closeBox();
    }
    EXPECT_THAT(fileCalls().attributes, SizeIs(1));
    EXPECT_THAT(fileCalls().existence, SizeIs(1));
  }
}

TEST_F(QuickInfoOnScreenTest, AFileWithoutBytesHasNone) {
  addPhoto("Album/0.jpg", 0, 0);
  openAlbum("Album");
  pressItem(0);
  EXPECT_THAT(summary(), HasSubstr("File Size: Zero KB\n"));
  closeBox();
}

TEST_F(QuickInfoOnScreenTest, WhatACaptionHasReadIsNotLookedForAgain) {
  settings.thumbnailInfoDisplay = 2;
  openAlbumOf(2);
  EXPECT_THAT(fileCalls().attributes, SizeIs(2));
  pressItem(1);
  EXPECT_NE(summary(), "");
  closeBox();
  EXPECT_THAT(fileCalls().attributes, SizeIs(2));
  EXPECT_THAT(fileCalls().existence, IsEmpty());
}

TEST_F(QuickInfoOnScreenTest, TellsOfTheItemUnderTheFingerWhereTheGridIsScrolled) {
  openAlbumOf(60);
  pressItem(57);
  EXPECT_THAT(summary(), testing::StartsWith(folder.file("Album/57.jpg") + "\n"));
  closeBox();
}

TEST_F(QuickInfoOnScreenTest, AFileThatVanishedHasNoBytes) {
  openAlbumOf(2);
  std::filesystem::remove(folder.file("Album/00.jpg"));
  pressItem(0);
  EXPECT_THAT(summary(), HasSubstr("File Size: Zero KB\n"));
  EXPECT_LE(fileCalls().existence.size(), 6U);
  EXPECT_THAT(fileCalls().attributes, IsEmpty());
}

TEST_F(QuickInfoOnScreenTest, APressBesideTheItemsIsLogged) {
  openAlbumOf(1);
  longPress(CGPoint{300, 300});
  const AutoreleasePool pool;
  EXPECT_THAT(lines, testing::ElementsAre("[Tweak:1373] couldn't find index path"));
  EXPECT_FALSE(box());
}

TEST_F(QuickInfoOnScreenTest, TheLastCellOfASharedAlbumDoesNotAnswer) {
  folder.write("Album/.shared", "");
  openAlbumOf(2);
  pressItem(1);
  EXPECT_NE(summary(), "");
  closeBox();
  const AutoreleasePool pool;
  longPress(middleOf(cellOf(2)));
  EXPECT_FALSE(box());
}

TEST_F(QuickInfoOnScreenTest, EveryLevelButTheNearestIsWithout) {
  folder.photo("0.jpg", 0);
  open();
  EXPECT_EQ(longPresses(), 1);
  for (const char* level : {"collections", "years"}) {
    ASSERT_FALSE(desktop::photos_ui::setZoomLevel(level));
    settle();
    EXPECT_EQ(longPresses(), 0) << level;
  }
}

TEST_F(QuickInfoOnScreenTest, AnAlbumOpenedWhileItIsOffIsWithout) {
  settings.thumbnailQuickInfo = 0;
  openAlbumOf(1);
  EXPECT_EQ(longPresses(), 0);
  settings.thumbnailQuickInfo = 1;
  EXPECT_EQ(longPresses(), 0);
}

TEST_F(QuickInfoOnScreenTest, AThousandPressesLeaveNothingBehind) {
  openAlbumOf(4);
  const auto pressAndClose = [](int value) {
    const AutoreleasePool pool;
    settings.thumbnailQuickInfo = value;
    pressItem(2);
    ASSERT_EQ(static_cast<bool>(box()), value == 1);
    tap(value == 1 ? CGPoint{5, 100} : middleOf(labelWith(alert().view(), "Ok")));
    ASSERT_FALSE(box());
    ASSERT_FALSE(alert());
  };
  for (const int value : {1, 2}) pressAndClose(value);
  const long before = liveBoundObjects();
  for (int count = 0; count < 500 && !HasFatalFailure(); ++count)
    for (const int value : {1, 2}) pressAndClose(value);
  EXPECT_EQ(liveBoundObjects(), before);
}

TEST_F(QuickInfoOnScreenTest, ScrollingAndTapsReachTheGrid) {
  openAlbumOf(40);
  drag({187, 500}, {187, 250});
  const AutoreleasePool pool;
  EXPECT_GT((send<CGPoint, "contentOffset">(collection()).y), 50);
  EXPECT_FALSE(box());
  tap(placeOf(20));
  EXPECT_TRUE(desktop::photos_ui::oneUpOnShow());
}

}  // namespace
}  // namespace lumifact
