// SPDX-License-Identifier: MIT
//
// What the tools below a single photo do.
#include <gmock/gmock.h>

#include <filesystem>

#include "desktop/photos_ui/navigation/navigation.h"
#include "desktop/photos_ui/one_up/pu_one_up_view_controller.h"
#include "desktop/uikit/controllers/ui_activity_view_controller.h"
#include "tests/desktop/photos_ui/one_up_screen.h"
#include "tests/support/movie_builder.h"
#include "tests/support/sample_photo.h"

namespace desktop::photos_ui {
namespace {

using testing::Contains;

constexpr CGPoint favouriteTool{350, 645};
constexpr CGPoint middleTool{187.5, 645};

TEST_F(OneUpTest, MakesAFavouriteOfTheItemOnShow) {
  addPictures(2);
  show(1);
  const library::ItemPointer item = oneUp().currentItem();
  tap(favouriteTool);
  EXPECT_TRUE(library->isFavourite(*item));
  EXPECT_TRUE(act(OneUpAction::previous));
  settle();
  tap(favouriteTool);
  EXPECT_TRUE(library->isFavourite(*oneUp().currentItem()));
  EXPECT_TRUE(act(OneUpAction::next));
  settle();
  tap(favouriteTool);
  EXPECT_FALSE(library->isFavourite(*item));
}

TEST_F(OneUpTest, TellsWhyAFavouriteCannotBeKept) {
  addPictures(1);
  show(0);
  const library::ItemPointer item = oneUp().currentItem();
  std::filesystem::create_directories(library->root().folder() + "/favourites");
  tap(favouriteTool);
  EXPECT_FALSE(library->isFavourite(*item));
  EXPECT_THAT(texts(), Contains("Favorite Not Saved"));
}

TEST_F(OneUpTest, ShowsTheFilmOfALivePhotoInItsPlace) {
  addPictures(1);
  const auto still = media::facts::sampleJpeg({.contentIdentifier = "ONE"});
  folder.write("Album/live.jpg", std::span(still));
  const auto metadata =
      media::movie::quickTimeMetadata({{"com.apple.quicktime.content.identifier", "ONE"}});
  const auto film = media::movie::joined(
      {media::movie::fileType("qt  "),
       media::movie::box("moov", {media::movie::movieHeader(600, 1780), metadata})});
  folder.write("Album/live.mov", std::span(film));
  show(1);
  ASSERT_EQ(currentName(), "live.jpg");
  tap(middleTool);
  EXPECT_EQ(currentName(), "live.mov");
  deliver();
  EXPECT_EQ(currentName(), "live.mov") << "which is still there, though in no list";
  tap(middleTool);
  EXPECT_EQ(currentName(), "live.jpg");
  EXPECT_TRUE(act(OneUpAction::previous));
  settle();
  tap(middleTool);
  EXPECT_EQ(currentName(), "0.bmp") << "an ordinary photo has no other half";
}

TEST_F(OneUpTest, SharesThePathOfTheItem) {
  const AutoreleasePool pool;
  addPictures(2);
  show(1);
  tap({20, 645});
  const auto sheet = send<UIViewController, "presentedViewController">(top());
  ASSERT_TRUE(isKindOf(sheet, UIActivityViewController::classObject()));
  EXPECT_EQ(uikit::UIActivityViewControllerState::of(sheet).text(), folder.file("Album/1.bmp"));
}

}  // namespace
}  // namespace desktop::photos_ui
