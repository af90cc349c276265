// SPDX-License-Identifier: MIT
//
// The button for fewer columns in the photo application's own albums.
#include <gmock/gmock.h>

#include "desktop/photos_ui/navigation/navigation.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/scrolling/ui_scroll_view.h"
#include "lumifact/grid/grid_size_button.h"
#include "tests/lumifact/grid/grid_screen.h"
#include "tests/lumifact/views/shown_views.h"

namespace lumifact {
namespace {

using desktop::uikit::application;

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
  static void scrollTo(CGFloat y) { send<void, "setContentOffset:">(collection(), CGPoint{0, y}); }
  // The next picture and no more, in which every caption fills its thumbnail but for a margin.
  static void expectCaptionsToFitNow(const char* when) {
    application().prepareFrame();
    const auto cells = send<NSArray, "visibleCells">(collection());
    ASSERT_GT(cells.count(), 0U);
    for (NSUInteger index = 0; index < cells.count(); ++index) {
      const PUPhotosGridCell cell(cells.at(index).get());
      const CGSize size = cell.bounds().size;
      EXPECT_EQ((send<UIView, "sizeLabelView">(cell).frame()),
                (CGRect{{0, size.height - 16}, {size.width, 16}}))
          << when;
      EXPECT_EQ((send<UIView, "sizeLabel">(cell).frame()), (CGRect{{2, -1}, {size.width - 4, 16}}))
          << when;
    }
  }

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

TEST_F(GridSizeOnScreenTest, LetsCaptionsFillTheirThumbnailsAtEverySize) {
  openAlbumOf(90);
  const AutoreleasePool pool;
  const auto toggle = [] { send<void, "LFChangeGridsize:">(top(), Object()); };
  toggle();
  expectCaptionsToFitNow("large");
  scrollTo(1'500);
  expectCaptionsToFitNow("large, used again");
  toggle();
  expectCaptionsToFitNow("small again");
  scrollTo(0);
  expectCaptionsToFitNow("small, used again");
  application().resize({667, 375});
  expectCaptionsToFitNow("on its side");
  scrollTo(500);
  expectCaptionsToFitNow("on its side, used again");
  application().resize({375, 667});
  expectCaptionsToFitNow("upright again");
  settle();
}

TEST_F(GridSizeOnScreenTest, KeepsThePlaceInTheAlbum) {
  openAlbumOf(90);
  scrollTo(500);
  settle();
  const auto place = [] {
    const auto& scroll = desktop::uikit::UIScrollViewState::of(collection().get());
    return grid().layout().frameOfItem({0, 24}).origin.y - scroll.contentOffset().y;
  };
  const CGFloat before = place();
  press();
  EXPECT_EQ(place(), before);
  press();
  EXPECT_EQ(place(), before);
}

TEST_F(GridSizeOnScreenTest, OnePressIsOnePressInEveryAlbum) {
  folder.photo("Other/0.jpg", 0);
  const auto show = [](const char* album) {
    const AutoreleasePool pool;
    ASSERT_FALSE(desktop::photos_ui::openAlbum(album));
    settle();
  };
  const auto width = [] {
    const AutoreleasePool pool;
    return widthOf(0);
  };
  {
    const AutoreleasePool pool;
    openAlbumOf(5);
  }
  press();
  EXPECT_EQ(width(), 186.5);
  show("Other");
  EXPECT_EQ(width(), 186.5);
  press();
  EXPECT_EQ(width(), 93);
  show("Album");
  EXPECT_EQ(width(), 93);
  press();
  EXPECT_EQ(width(), 186.5);
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
    application().resize(row.screen);
    settle();
    const PUPhotosAlbumViewController album(controller().get());
    EXPECT_EQ(album.mainGridLayout().columnsPerRow(), row.columns) << row.screen.width;
    EXPECT_EQ(widthOf(0), row.side) << row.screen.width;
  }
  application().resize({375, 667});
  settle();
}

}  // namespace
}  // namespace lumifact
