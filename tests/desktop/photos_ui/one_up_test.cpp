// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "desktop/faces/photos/ph_asset.h"
#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/navigation/navigation.h"
#include "desktop/photos_ui/one_up/pu_one_up_view_controller.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/graphics/color.h"
#include "tests/desktop/photos_ui/one_up_screen.h"

namespace desktop::photos_ui {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::UnorderedElementsAre;
using uikit::application;

// The item that extensions are told is on show.
std::string assetOnShow(const PUOneUpViewControllerState& oneUp,
                        const library::LibraryFolder& folder, Object layout) {
  const AutoreleasePool pool;
  const auto path = send<NSIndexPath, "indexPathOfCurrentItem">(layout);
  const auto reference =
      send<PUAssetReference, "_assetReferenceAtIndexPath:layout:">(oneUp.self(), path, layout);
  const auto asset = send<Object, "asset">(reference);
  return asset ? folder.below(faces::PHAssetState::itemOf(asset)->path) : "";
}

TEST_F(OneUpTest, TurnsPagesByDraggingAndStopsAtTheEnds) {
  addPictures(3);
  show(0);
  drag({300, 300}, {60, 300});
  EXPECT_EQ(currentName(), "1.bmp");
  drag({300, 300}, {60, 300});
  EXPECT_EQ(currentName(), "2.bmp");
  drag({300, 300}, {60, 300});
  EXPECT_EQ(currentName(), "2.bmp");
  drag({60, 300}, {300, 300});
  EXPECT_EQ(currentName(), "1.bmp");
  drag({200, 300}, {150, 300});
  EXPECT_EQ(currentName(), "1.bmp") << "too short a way";
}

TEST_F(OneUpTest, TurnsPagesByKeys) {
  addPictures(5);
  show(1);
  EXPECT_TRUE(act(OneUpAction::next));
  EXPECT_EQ(currentName(), "2.bmp");
  EXPECT_TRUE(act(OneUpAction::previous));
  EXPECT_TRUE(act(OneUpAction::previous));
  EXPECT_EQ(currentName(), "0.bmp");
  EXPECT_FALSE(act(OneUpAction::previous));
  EXPECT_TRUE(act(OneUpAction::last));
  EXPECT_EQ(currentName(), "4.bmp");
  EXPECT_FALSE(act(OneUpAction::next));
  EXPECT_TRUE(act(OneUpAction::first));
  EXPECT_EQ(currentName(), "0.bmp");
  EXPECT_FALSE(act(OneUpAction::play)) << "a photo does not play";
  EXPECT_FALSE(performOneUpAction({}, OneUpAction::next));
}

TEST_F(OneUpTest, TurnsPagesAsQuicklyAsKeysRepeat) {
  addPictures(9);
  show(0);
  for (int press = 0; press < 4; ++press) {
    EXPECT_TRUE(performOneUpAction(oneUpOnShow(), OneUpAction::next)) << press;
    settle(0.05);
  }
  settle();
  EXPECT_EQ(currentName(), "4.bmp");
}

TEST_F(OneUpTest, KeepsOnlyThePageOnShowAndItsNeighbours) {
  addPictures(6);
  show(0);
  EXPECT_THAT(pages(), UnorderedElementsAre("0.bmp", "1.bmp"));
  act(OneUpAction::next);
  act(OneUpAction::next);
  EXPECT_THAT(pages(), UnorderedElementsAre("1.bmp", "2.bmp", "3.bmp"));
  act(OneUpAction::last);
  EXPECT_THAT(pages(), UnorderedElementsAre("4.bmp", "5.bmp"));
}

TEST_F(OneUpTest, SaysWhichItemIsOnShow) {
  const AutoreleasePool pool;
  addPictures(3);
  show(1);
  const auto& layout = oneUp().layout();
  EXPECT_EQ(assetOnShow(oneUp(), folder, layout), "Album/1.bmp");
  act(OneUpAction::next);
  EXPECT_EQ(assetOnShow(oneUp(), folder, layout), "Album/2.bmp");
  EXPECT_FALSE((send<id, "_assetReferenceAtIndexPath:layout:">(
      oneUp().self(), uikit::indexPathOf({0, 3}), layout)));
  EXPECT_FALSE((send<id, "_assetReferenceAtIndexPath:layout:">(oneUp().self(), id{}, id{})));
  const auto fresh = makeNew<PUOneUpTilingLayout>();
  EXPECT_FALSE(fresh->indexPathOfCurrentItem()) << "nothing is shown by it";
}

TEST_F(OneUpTest, ShowsTheDateOfTheItem) {
  addPictures(2);
  show(0);
  EXPECT_EQ(title(), "Jan 1, 1970");
  act(OneUpAction::next);
  EXPECT_EQ(title(), "Jan 2, 1970");
}

TEST_F(OneUpTest, KeepsItsPageWhenTheScreenIsTurned) {
  addPictures(4);
  show(2);
  application().resize({667, 375});
  deliverPictures();
  EXPECT_EQ(currentName(), "2.bmp");
  EXPECT_EQ(pictureFrame(), (CGRect{{83.5, 0}, {500, 375}}));
  application().resize({375, 667});
  deliverPictures();
  EXPECT_EQ(currentName(), "2.bmp");
  EXPECT_EQ(pictureFrame(), (CGRect{{0, 192.875}, {375, 281.25}}));
}

TEST_F(OneUpTest, KeepsToPagesWhenTheScreenIsTurnedOnTheWay) {
  addPictures(4);
  show(1);
  EXPECT_TRUE(performOneUpAction(oneUpOnShow(), OneUpAction::next));
  settle(0.1);
  application().resize({667, 375});
  deliverPictures();
  EXPECT_EQ(pictureFrame(), (CGRect{{83.5, 0}, {500, 375}}));
}

TEST_F(OneUpTest, HidesAndShowsBarsByTaps) {
  application().statusBar.isShown = true;
  addPictures(2);
  show(0);
  const auto background = [] {
    const AutoreleasePool pool;
    return uikit::UIViewState::of(top().view()).backgroundColor();
  };
  const auto& bars = navigation();
  EXPECT_FALSE(bars.isNavigationBarHidden());
  EXPECT_FALSE(bars.isToolbarHidden());
  EXPECT_EQ(background(), uikit::colors::white);
  tap(screenMiddle);
  EXPECT_TRUE(bars.isNavigationBarHidden());
  EXPECT_TRUE(bars.isToolbarHidden());
  EXPECT_FALSE(application().statusBar.isShown);
  EXPECT_EQ(background(), uikit::colors::black);
  tap(screenMiddle);
  EXPECT_FALSE(bars.isNavigationBarHidden());
  EXPECT_FALSE(bars.isToolbarHidden());
  EXPECT_TRUE(application().statusBar.isShown);
  EXPECT_EQ(background(), uikit::colors::white);
}

TEST_F(OneUpTest, LeavesBarsAsTheyWere) {
  application().statusBar.isShown = true;
  addPictures(2);
  show(0);
  tap(screenMiddle);
  ASSERT_FALSE(goBack());
  settle();
  EXPECT_FALSE(isOneUpOnShow());
  EXPECT_FALSE(navigation().isNavigationBarHidden());
  EXPECT_TRUE(navigation().isToolbarHidden());
  EXPECT_TRUE(application().statusBar.isShown);
  EXPECT_EQ(title(), "Album");
}

TEST_F(OneUpTest, KeepsThePictureInPlaceWhenBarsGo) {
  addPictures(2);
  show(0);
  const CGRect before = pictureFrame();
  tap(screenMiddle);
  EXPECT_EQ(pictureFrame(), before);
}

TEST_F(OneUpTest, SaysWhyAPhotoCannotBeShown) {
  folder.broken("Album/broken.jpg");
  addPicture("fine.bmp", 40);
  show(0);
  EXPECT_THAT(texts(), Contains(HasSubstr("broken.jpg\ncannot be shown: ")));
  EXPECT_EQ(library->problems().size(), 1U);
  act(OneUpAction::next);
  EXPECT_EQ(pictureFrame().size.width, 375);
}

TEST_F(OneUpTest, PlaysVideosOutside) {
  const std::string path = folder.broken("Album/my clip.mov");
  show(0);
  tap(screenMiddle);
  ASSERT_EQ(application().opened.size(), 1U);
  EXPECT_THAT(application().opened[0], HasSubstr("file://"));
  EXPECT_THAT(application().opened[0], HasSubstr("/Album/my%20clip.mov"));
  EXPECT_FALSE(navigation().isNavigationBarHidden()) << "the button takes the tap";
  EXPECT_TRUE(act(OneUpAction::play));
  EXPECT_EQ(application().opened.size(), 2U);
}

TEST_F(OneUpTest, PreviewsACardWithoutBarsThatATapBesideCloses) {
  addPictures(3);
  peek(1);
  ASSERT_TRUE(isOneUpOnShow());
  EXPECT_EQ(currentName(), "1.bmp");
  EXPECT_EQ(pictureFrame(), (CGRect{{16, 204.875}, {343, 257.25}}));
  EXPECT_TRUE(navigation().isToolbarHidden());
  tap(screenMiddle);
  EXPECT_TRUE(isOneUpOnShow()) << "a tap on the card";
  drag({300, 333}, {60, 333});
  EXPECT_EQ(currentName(), "1.bmp") << "a card is not paged";
  tap({187, 100});
  EXPECT_FALSE(isOneUpOnShow());
  EXPECT_EQ(title(), "Album");
}

TEST_F(OneUpTest, KeepsPreviewsOfAnyShapeOnTheScreen) {
  addPicture("tall.bmp", 0, 10, 400);
  addPicture("wide.bmp", 1, 400, 10);
  for (const long item : {0, 1}) {
    peek(item);
    const CGRect card = uikit::UIViewState::of(tilingView().self()).frame();
    EXPECT_GE(card.origin.x, 16) << item;
    EXPECT_GE(card.origin.y, 16) << item;
    EXPECT_GE(card.size.height, 96) << item;
    EXPECT_LE(card.origin.y + card.size.height, 651) << item;
    ASSERT_FALSE(goBack());
    settle();
  }
}

TEST_F(OneUpTest, LeavesNothingBehind) {
  addPictures(4);
  open();
  ASSERT_FALSE(openAlbum("Album"));
  long before = 0;
  for (int turn = 0; turn < 3; ++turn) {
    std::optional<AutoreleasePool> pool{std::in_place};
    ASSERT_FALSE(openItem(turn));
    settle();
    act(OneUpAction::next);
    tap(screenMiddle);
    act(OneUpAction::zoomIn);
    ASSERT_FALSE(goBack());
    settle();
    ASSERT_FALSE(peekItem(turn));
    deliverPictures();
    ASSERT_FALSE(goBack());
    settle();
    pool.reset();
    if (turn == 0) before = liveBoundObjects();
    EXPECT_EQ(liveBoundObjects(), before) << turn;
  }
}

TEST_F(OneUpTest, WantsNoPicturesOnceItIsLeft) {
  addPictures(4);
  open();
  ASSERT_FALSE(openAlbum("Album"));
  deliverPictures();
  std::optional<AutoreleasePool> pool{std::in_place};
  ASSERT_FALSE(openItem(1));
  EXPECT_FALSE(host().pictures->waitUntilIdle(std::chrono::milliseconds(0)));
  ASSERT_FALSE(goBack());
  settle();
  pool.reset();
  EXPECT_TRUE(host().pictures->waitUntilIdle(std::chrono::milliseconds(0)));
}

}  // namespace
}  // namespace desktop::photos_ui
