// SPDX-License-Identifier: MIT
//
// The button for fewer columns in the photo application's own albums.
#include <gmock/gmock.h>

#include "desktop/photos_ui/navigation/navigation.h"
#include "desktop/uikit/application/application.h"
#include "lumifact/grid/grid_size_button.h"
#include "tests/lumifact/grid/grid_screen.h"
#include "tests/lumifact/views/shown_views.h"

namespace lumifact {
namespace {

class GridSizeOnScreenTest : public GridScreenTest {
 protected:
  GridSizeOnScreenTest() { settings.useGridSizeButton = true; }
  ~GridSizeOnScreenTest() override {
    const AutoreleasePool pool;
    if (_presses % 2 == 1) send<void, "LFChangeGridsize:">(top(), Object());
  }

  static UIView button() { return gridSizeButton({}).button; }
  static NSArray items() { return top().navigationItem().rightBarButtonItems(); }
  void press() {
    const AutoreleasePool pool;
    tap(middleOf(button()));
    ++_presses;
  }
  static CGFloat widthOf(NSInteger item) { return cellOf(item).frame().size.width; }

 private:
  int _presses = 0;
};

TEST_F(GridSizeOnScreenTest, StandsBesideSelectOnce) {
  openAlbumOf(5);
  const AutoreleasePool pool;
  ASSERT_EQ(items().count(), 3U);
  EXPECT_EQ(items().at(2), gridSizeItem());
  const CGFloat select = middleOf(labelWith(top().navigationController().view(), "Select")).x;
  EXPECT_LT(middleOf(button()).x, select);
  setEditing(true);
  setEditing(false);
  EXPECT_EQ(items().count(), 3U);
}

TEST_F(GridSizeOnScreenTest, TogglesBetweenFourColumnsAndTwo) {
  openAlbumOf(5);
  const AutoreleasePool pool;
  EXPECT_EQ(widthOf(0), 93);
  press();
  EXPECT_EQ(widthOf(0), 186.5);
  EXPECT_EQ(cellOf(2).frame().origin.y, 187.5);
  press();
  EXPECT_EQ(widthOf(0), 93);
}

TEST_F(GridSizeOnScreenTest, HoldsForTheNextAlbumAndNotForMoments) {
  folder.photo("Other/0.jpg", 0);
  openAlbumOf(5);
  const AutoreleasePool pool;
  press();
  ASSERT_FALSE(desktop::photos_ui::openPhotos());
  settle();
  EXPECT_EQ(widthOf(0), 93);
  ASSERT_FALSE(desktop::photos_ui::openAlbum("Other"));
  settle();
  EXPECT_EQ(widthOf(0), 186.5);
}

TEST_F(GridSizeOnScreenTest, IsNotOfferedWhereTheSettingIsOff) {
  settings.useGridSizeButton = false;
  openAlbumOf(5);
  const AutoreleasePool pool;
  EXPECT_EQ(items().count(), 1U);
}

// The platform has more columns on a wider screen; each width with the side that two fewer give.
TEST_F(GridSizeOnScreenTest, FollowsTheFormulaAtEveryWidth) {
  openAlbumOf(30);
  const AutoreleasePool pool;
  press();
  const struct {
    CGSize screen;
    NSInteger columns;
    double side;
  } rows[] = {{{375, 667}, 4, 186.5},
              {{768, 1024}, 8, 123},
              {{1270, 900}, 13, 105.45454406738281},
              {{1920, 1080}, 20, 89.666664123535156}};
  for (const auto& row : rows) {
    desktop::uikit::application().resize(row.screen);
    settle();
    const PUPhotosAlbumViewController album(controller().get());
    EXPECT_EQ(album.mainGridLayout().columnsPerRow(), row.columns) << row.screen.width;
    EXPECT_EQ(widthOf(0), row.side) << row.screen.width;
  }
  desktop::uikit::application().resize({375, 667});
  settle();
}

}  // namespace
}  // namespace lumifact
