// SPDX-License-Identifier: MIT
//
// Thumbnails through real worker processes, which make up their pictures.
#include <gmock/gmock.h>

#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/cells/pu_photos_grid_cell.h"
#include "desktop/photos_ui/navigation/navigation.h"
#include "desktop/pictures/picture_loader.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/graphics/ui_image.h"
#include "desktop/uikit/lists/ui_collection_view.h"
#include "tests/desktop/photos_ui/library_screen.h"

namespace desktop::photos_ui {
namespace {

using State = PUPhotoViewContentHelperState::State;

class ThumbnailTest : public LibraryScreenTest {
 protected:
  void openAlbum() {
    host().pictures = &_pictures;
    open();
    ASSERT_FALSE(photos_ui::openAlbum("Album"));
    settle();
  }
  void waitForPictures() {
    ASSERT_TRUE(_pictures.waitUntilIdle(std::chrono::seconds(20)));
    settle();
  }
  static PUPhotosGridCellState* cell(NSInteger item) {
    const auto& views = uikit::UICollectionViewState::of(grid().collectionView()).views();
    const auto found = views.find({{}, {0, item}});
    return found == views.end() ? nullptr : &PUPhotosGridCellState::of(found->second.get());
  }
  static UIImageView imageView(NSInteger item) {
    const auto photo = cell(item)->photoContentView();
    return as<UIImageView>(photo.subviews().at(0));
  }
  pictures::PictureLoader& loader() { return _pictures; }

 private:
  pictures::PictureLoader _pictures{{.command = {"/proc/self/exe", "--make-pictures"}}};
};

TEST_F(ThumbnailTest, FillsTheCellUnscaledAndInItsMiddle) {
  folder.photo("Album/a.jpg");
  openAlbum();
  EXPECT_EQ(cell(0)->content().state(), State::loading);
  waitForPictures();
  EXPECT_EQ(cell(0)->content().state(), State::shown);
  const CGRect frame = imageView(0).frame();
  EXPECT_EQ(frame.size.width, 186);
  EXPECT_EQ(frame.size.height, 93);
  EXPECT_EQ(frame.origin.x, -46.5);
  EXPECT_EQ(uikit::UIImageState::bitmapOf(imageView(0).image())->height, 186);
}

TEST_F(ThumbnailTest, NotesWhatCannotBeShown) {
  folder.photo("Album/broken.jpg");
  openAlbum();
  waitForPictures();
  EXPECT_EQ(cell(0)->content().state(), State::failed);
  EXPECT_EQ(library->problems().at(folder.file("Album/broken.jpg")), "cut short");
}

TEST_F(ThumbnailTest, AsksForNoMoreThanIsInSight) {
  for (int index = 0; index < 200; ++index)
    folder.photo("Album/" + std::to_string(1000 + index) + ".jpg", index);
  openAlbum();
  waitForPictures();
  EXPECT_TRUE(cell(20));
  EXPECT_FALSE(cell(100));
  const auto& list = *grid().list();
  const pictures::Request request{186, 186, pictures::Request::Fit::fill};
  EXPECT_TRUE(loader().find(list.at(20)->path, request));
  EXPECT_FALSE(loader().find(list.at(100)->path, request));
}

TEST_F(ThumbnailTest, DropsWhatIsScrolledAwayBeforeItCame) {
  for (int index = 0; index < 2'000; ++index)
    folder.photo("Album/" + std::to_string(10'000 + index) + ".jpg", index);
  openAlbum();
  int seen = 0;
  for (int y = 0; y < 20'000; y += 700) {
    send<void, "setContentOffset:">(grid().collectionView(), CGPoint{0, static_cast<CGFloat>(y)});
    settle(0.016);
    seen += static_cast<int>(send<NSArray, "visibleCells">(grid().collectionView()).count());
  }
  waitForPictures();
  const pictures::Request request{186, 186, pictures::Request::Fit::fill};
  int decoded = 0;
  const auto& items = grid().list()->items();
  for (const auto& item : items) decoded += loader().find(item->path, request) ? 1 : 0;
  EXPECT_LT(decoded, seen / 2);
  EXPECT_GE(decoded, 28) << "what is in sight at the end";
}

TEST_F(ThumbnailTest, AsksForASharperPictureWhereACellGrows) {
  folder.photo("Album/a.jpg");
  openAlbum();
  waitForPictures();
  const UIImageView shown = imageView(0);
  const UIImage small = shown.image();
  uikit::application().resize({350, 667});
  settle();
  EXPECT_EQ(cell(0)->content().state(), State::shown) << "the small one, until the other is there";
  EXPECT_EQ(shown.image(), small);
  waitForPictures();
  EXPECT_NE(shown.image(), small);
  EXPECT_EQ(uikit::UIImageState::bitmapOf(shown.image())->height, 173);
  EXPECT_EQ(shown.frame().size.height, 86.5);
}

TEST_F(ThumbnailTest, ShowsAChangedFileAnew) {
  folder.photo("Album/a.jpg");
  openAlbum();
  waitForPictures();
  folder.photo("Album/a.jpg", 2'000'000);
  deliver();
  EXPECT_EQ(cell(0)->content().state(), State::loading);
  waitForPictures();
  EXPECT_EQ(cell(0)->content().state(), State::shown);
}

}  // namespace
}  // namespace desktop::photos_ui
