// SPDX-License-Identifier: MIT
//
// The size of a selection in the photo application's own grids.
#include <gmock/gmock.h>

#include <filesystem>

#include "desktop/uikit/touch/touch_dispatcher.h"
#include "tests/lumifact/grid/grid_screen.h"
#include "tests/lumifact/views/shown_views.h"

namespace lumifact {
namespace {

using desktop::uikit::touches;
using host::fileCalls;
using testing::SizeIs;

class SelectionOnScreenTest : public GridScreenTest {
 protected:
  SelectionOnScreenTest() { settings.showSelectedSize = true; }

  // Eight photos of a megabyte and a half, in select mode.
  void openSelecting() {
    for (int index = 0; index < 8; ++index)
      addPhoto("Album/" + std::to_string(index) + ".jpg", index, 1'500'000);
    openAlbum("Album");
    setEditing(true);
  }
  static void tapItem(long item) { tap(placeOf(item)); }
  static void swipeFrom(long item) {
    touches().down(placeOf(item));
    touches().move({placeOf(item).x + 12, placeOf(item).y});
    settle(0.1);
  }
  static void swipeTo(long item) {
    touches().move(placeOf(item));
    settle(0.1);
  }
};

TEST_F(SelectionOnScreenTest, FollowsEveryTap) {
  openSelecting();
  EXPECT_EQ(title(), "Select Items");
  tapItem(2);
  EXPECT_EQ(title(), "1 Photo Selected (1.5 MB) ");
  tapItem(5);
  EXPECT_EQ(title(), "2 Photos Selected (3 MB) ");
  tapItem(2);
  EXPECT_EQ(title(), "1 Photo Selected (1.5 MB) ");
  tapItem(5);
  EXPECT_EQ(title(), "Select Items");
  EXPECT_THAT(fileCalls().attributes, SizeIs(2));
}

TEST_F(SelectionOnScreenTest, IsAddedUpFromFilesOfAllSizes) {
  addPhoto("Album/0.jpg", 0, 1'500'000);
  addPhoto("Album/1.jpg", 1, 2'500'000);
  openAlbum("Album");
  setEditing(true);
  tapItem(0);
  tapItem(1);
  EXPECT_EQ(title(), "2 Photos Selected (4 MB) ");
}

TEST_F(SelectionOnScreenTest, OfALargeFileIsTrueOnce) {
  addPhoto("Album/0.jpg", 0, 3'000'000'000);
  addPhoto("Album/1.jpg", 1, 16'000'000'000'000);
  openAlbum("Album");
  setEditing(true);
  const auto titleAfterTapping = [](long item) {
    tapItem(item);
    return title();
  };
  EXPECT_EQ(titleAfterTapping(0), "1 Photo Selected (3 GB) ");
  titleAfterTapping(0);
  EXPECT_EQ(titleAfterTapping(0), "1 Photo Selected (-1.29 GB) ");
  EXPECT_EQ(titleAfterTapping(1), "2 Photos Selected (16 TB) ");
  EXPECT_EQ(titleAfterTapping(0), "1 Photo Selected (1.25 GB) ");
}

TEST_F(SelectionOnScreenTest, CountsNothingOfFilesThatVanish) {
  openSelecting();
  std::filesystem::remove(folder.file("Album/2.jpg"));
  tapItem(2);
  EXPECT_EQ(title(), "1 Photo Selected");
  tapItem(3);
  EXPECT_EQ(title(), "2 Photos Selected (1.5 MB) ");
}

TEST_F(SelectionOnScreenTest, CountsNothingOfEmptyFiles) {
  addPhoto("Album/0.jpg", 0, 0);
  addPhoto("Album/1.jpg", 1, 1'500'000);
  openAlbum("Album");
  setEditing(true);
  tapItem(0);
  EXPECT_EQ(title(), "1 Photo Selected");
  tapItem(1);
  EXPECT_EQ(title(), "2 Photos Selected (1.5 MB) ");
}

TEST_F(SelectionOnScreenTest, GoesWithSelectMode) {
  openSelecting();
  tapItem(2);
  setEditing(false);
  EXPECT_EQ(title(), "Album");
}

TEST_F(SelectionOnScreenTest, IsLeftOutWhereTheSettingIsOff) {
  settings.showSelectedSize = false;
  openSelecting();
  tapItem(2);
  EXPECT_EQ(title(), "1 Photo Selected");
}

TEST_F(SelectionOnScreenTest, WaitsForTheEndOfASwipe) {
  openSelecting();
  const AutoreleasePool pool;
  swipeFrom(0);
  swipeTo(3);
  EXPECT_EQ(title(), "4 Photos Selected");
  EXPECT_THAT(fileCalls().attributes, SizeIs(0));
  touches().up(placeOf(3));
  settle();
  EXPECT_EQ(title(), "4 Photos Selected (6 MB) ");
  EXPECT_THAT(fileCalls().attributes, SizeIs(4));
}

TEST_F(SelectionOnScreenTest, WaitsForTheNextSwipeWhereOneIsInterrupted) {
  openSelecting();
  const AutoreleasePool pool;
  swipeFrom(0);
  swipeTo(2);
  touches().cancel();
  settle();
  tapItem(5);
  EXPECT_EQ(title(), "1 Photo Selected");
  swipeFrom(6);
  swipeTo(7);
  touches().up(placeOf(7));
  settle();
  EXPECT_EQ(title(), "3 Photos Selected (4.5 MB) ");
}

TEST_F(SelectionOnScreenTest, ShrinksToFitTheBar) {
  openSelecting();
  tapItem(0);
  const AutoreleasePool pool;
  const auto bar = top().navigationController().navigationBar();
  const UIView label = labelWith(bar, "1 Photo Selected (1.5 MB) ");
  ASSERT_TRUE(label);
  EXPECT_TRUE((send<bool, "adjustsFontSizeToFitWidth">(label)));
  EXPECT_EQ((send<CGFloat, "minimumFontSize">(label)), 4);
}

}  // namespace
}  // namespace lumifact
