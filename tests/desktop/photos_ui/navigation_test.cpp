// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/navigation/navigation.h"

#include <gmock/gmock.h>

#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/grid/pu_zoomable_grid_view_controller.h"
#include "tests/desktop/photos_ui/library_screen.h"

namespace desktop::photos_ui {
namespace {

using testing::Contains;

class NavigationTest : public LibraryScreenTest {
 protected:
  void openSample() {
    for (int index = 0; index < 40; ++index)
      folder.photo((index % 2 == 0 ? "City/" : "Coast/") + std::to_string(index) + ".jpg",
                   index * 20 * aDay);
    open();
  }
};

TEST_F(NavigationTest, GoesToEachZoomLevelAndBack) {
  openSample();
  const std::pair<const char*, const char*> levels[] = {
      {"years", "Years"}, {"moments", "Moments"}, {"collections", "Collections"}};
  for (const auto& [name, shown] : levels) {
    EXPECT_FALSE(setZoomLevel(name));
    settle();
    EXPECT_EQ(title(), shown) << name;
  }
  EXPECT_FALSE(goBack());
  settle();
  EXPECT_EQ(title(), "Years");
  EXPECT_TRUE(goBack()) << "there is nothing wider than years";
  EXPECT_TRUE(setZoomLevel("decades"));
}

TEST_F(NavigationTest, SaysAtWhichLevelAGridIs) {
  openSample();
  const AutoreleasePool pool;
  const auto info = [] { return PUZoomableGridViewController(top().get()).zoomLevelInfo(); };
  EXPECT_TRUE(isKindOf(info(), PUFullMomentsZoomLevelInfo::classObject()));
  ASSERT_FALSE(setZoomLevel("years"));
  EXPECT_TRUE(info());
  EXPECT_FALSE(isKindOf(info(), PUFullMomentsZoomLevelInfo::classObject()));
}

TEST_F(NavigationTest, LooksCloserWhereAPhotoIsTapped) {
  openSample();
  ASSERT_FALSE(setZoomLevel("years"));
  settle();
  tap(placeOf(3));
  EXPECT_EQ(title(), "Collections");
  tap(placeOf(3));
  EXPECT_EQ(title(), "Moments");
  EXPECT_THAT(texts(), Contains("Mar 2, 1970")) << "the tapped photo's day is in sight";
}

TEST_F(NavigationTest, OpensAlbumsByTheirTitles) {
  openSample();
  EXPECT_FALSE(openAlbums());
  settle();
  EXPECT_EQ(title(), "Albums");
  EXPECT_THAT(texts(), Contains("City"));
  EXPECT_FALSE(openAlbum("Coast"));
  settle();
  EXPECT_EQ(title(), "Coast");
  EXPECT_EQ(grid().list()->size(), 20U);
  const auto failed = openAlbum("Nowhere");
  ASSERT_TRUE(failed);
  EXPECT_EQ(failed->reason, "there is no album 'Nowhere'");
  EXPECT_FALSE(openPhotos());
  settle();
  EXPECT_EQ(title(), "Moments");
}

TEST_F(NavigationTest, OpensItemsOfTheGridOnShow) {
  openSample();
  ASSERT_FALSE(openAlbum("City"));
  EXPECT_FALSE(openItem(2));
  settle();
  EXPECT_TRUE(oneUpOnShow());
  EXPECT_FALSE(openItem(19)) << "from a single photo the grid below it counts";
  settle();
  const auto failed = openItem(20);
  ASSERT_TRUE(failed);
  EXPECT_EQ(failed->reason, "there is no item 20 among 20");
  EXPECT_TRUE(openItem(-1));
  EXPECT_FALSE(openItem(0));
  settle();
  EXPECT_FALSE(goBack());
  settle();
  EXPECT_FALSE(oneUpOnShow());
  EXPECT_EQ(title(), "City");
}

TEST_F(NavigationTest, PeeksAtTheItemUnderAPoint) {
  openSample();
  EXPECT_FALSE(openAlbum("City"));
  settle();
  const auto place = placeOfItem(2);
  ASSERT_TRUE(place);
  EXPECT_TRUE(peekAt({-10, -10})) << "nothing is there";
  EXPECT_FALSE(peekAt(*place));
  settle();
  EXPECT_TRUE(peekAt(*place)) << "a preview is on show already";
  EXPECT_FALSE(goBack());
  settle();
  EXPECT_EQ(title(), "City");
}

TEST_F(NavigationTest, OpensItemsOfTheMomentsFromTheListOfAlbums) {
  openSample();
  ASSERT_FALSE(openAlbums());
  EXPECT_FALSE(openItem(39));
  settle();
  EXPECT_TRUE(oneUpOnShow());
}

TEST_F(NavigationTest, PeeksAndPutsThePreviewAway) {
  openSample();
  EXPECT_FALSE(peekItem(1));
  settle();
  EXPECT_TRUE(oneUpOnShow());
  EXPECT_FALSE(goBack());
  settle();
  EXPECT_FALSE(oneUpOnShow());
}

TEST_F(NavigationTest, BringsAnItemIntoSightBeforeItSaysWhereItIs) {
  openSample();
  const CGPoint place = placeOf(0);
  EXPECT_GT(place.y, 116);
  EXPECT_LT(place.y, 618);
  EXPECT_TRUE(!placeOfItem(40));
}

TEST_F(NavigationTest, SelectsItemsInSelectModeWhichGoingBackEnds) {
  openSample();
  ASSERT_FALSE(openAlbum("City"));
  EXPECT_FALSE(selectItem(1));
  EXPECT_FALSE(selectItem(3));
  settle();
  EXPECT_EQ(title(), "2 Photos Selected");
  EXPECT_FALSE(goBack());
  settle();
  EXPECT_EQ(title(), "City");
}

TEST_F(NavigationTest, ListsWhatCouldNotBeShown) {
  openSample();
  library->noteProblem(folder.path() + "/City/4.jpg", "cut short");
  ASSERT_FALSE(openAlbums());
  deliver();
  EXPECT_THAT(texts(), Contains("Not Shown"));
}

TEST_F(NavigationTest, RefusesEverythingWhileNothingIsOnShow) {
  EXPECT_TRUE(openPhotos());
  EXPECT_TRUE(openAlbums());
  EXPECT_TRUE(openAlbum("City"));
  EXPECT_TRUE(openItem(0));
  EXPECT_TRUE(peekItem(0));
  EXPECT_TRUE(selectItem(0));
  EXPECT_TRUE(goBack());
  EXPECT_FALSE(placeOfItem(0));
  EXPECT_FALSE(oneUpOnShow());
}

}  // namespace
}  // namespace desktop::photos_ui
