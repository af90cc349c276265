// SPDX-License-Identifier: MIT
//
// Captions in the photo application's own grids.
#include <gmock/gmock.h>

#include <filesystem>

#include "desktop/photos_ui/navigation/navigation.h"
#include "tests/lumifact/grid/grid_screen.h"
#include "tests/lumifact/views/shown_views.h"
#include "tests/support/sample_photo.h"

namespace lumifact {
namespace {

using host::fileCalls;
using testing::ElementsAre;
using testing::SizeIs;

class CaptionsOnScreenTest : public GridScreenTest {
 protected:
  static CGFloat alphaOf(UIView view) { return send<CGFloat, "alpha">(view); }
  static Object helperOf(NSInteger item) { return cellOf(item).photoContentView().contentHelper(); }
  static UIView viewIn(const char* field, NSInteger item) {
    return UIView(objectField(helperOf(item), field).get());
  }
  static void layOutContentOf(Object helper) { send<void, "layoutSubviewsOfContentView">(helper); }
  static std::vector<std::string> captionsOf(NSInteger count) {
    std::vector<std::string> captions;
    for (NSInteger item = 0; item < count; ++item) captions.push_back(captionOf(item));
    return captions;
  }
  // A video and a panorama, which have badges, in the list of albums.
  void openListWithBadges() {
    folder.broken("Album/1.mov", 1);
    const auto wide = media::facts::sampleJpeg({.width = 400, .height = 100});
    folder.write("wide.jpg", std::span(wide));
    open();
    ASSERT_FALSE(desktop::photos_ui::openAlbums());
    deliver();
  }
};

TEST_F(CaptionsOnScreenTest, TellSizeAndType) {
  openAlbumOf(3);
  const AutoreleasePool pool;
  for (const NSInteger item : {0, 1, 2}) EXPECT_EQ(captionOf(item), "40x30, jpg");
  EXPECT_THAT(fileCalls().attributes, SizeIs(0));
}

TEST_F(CaptionsOnScreenTest, NameTheTypesThatTheyKnow) {
  const char* const names[] = {"0.bmp", "1.gif", "2.heic", "3.jpg",  "4.mov",
                               "5.mp4", "6.png", "7.tiff", "8.webp", "9.dng"};
  for (NSInteger item = 0; item < std::ssize(names); ++item)
    folder.broken(std::string("Album/") + names[item], static_cast<double>(item));
  openAlbum("Album");
  const AutoreleasePool pool;
  EXPECT_THAT(captionsOf(std::ssize(names)),
              ElementsAre("0x0, bmp", "0x0, gif", "0x0, ", "0x0, jpg", "0x0, mov", "0x0, mp4",
                          "0x0, png", "0x0, tif", "0x0, bmp", "0x0, "));
}

TEST_F(CaptionsOnScreenTest, StandOnTheLowerEdgeOfEveryThumbnail) {
  openAlbumOf(2);
  const AutoreleasePool pool;
  EXPECT_EQ(barOf(1).frame(), (CGRect{{0, 77}, {93, 16}}));
  EXPECT_EQ((send<Object, "superview">(barOf(1))), cellOf(1).contentView());
}

TEST_F(CaptionsOnScreenTest, TellTheSizeOfTheFile) {
  settings.thumbnailInfoDisplay = 2;
  addPhoto("Album/0.jpg", 0, 2'400'000);
  addPhoto("Album/1.jpg", 1, 16'000'000'000'000);
  addPhoto("Album/2.jpg", 2, 0);
  openAlbum("Album");
  const AutoreleasePool pool;
  askForCells(Sizes::unknown);
  EXPECT_EQ(captionOf(0), "2.4 MB, jpg");
  EXPECT_EQ(captionOf(1), "16 TB, jpg");
  EXPECT_EQ(captionOf(2), "Zero KB, jpg");
}

TEST_F(CaptionsOnScreenTest, TellTheTrueSizeOfALargeFileOnce) {
  settings.thumbnailInfoDisplay = 3;
  addPhoto("Album/0.jpg", 0, 3'000'000'000);
  openAlbum("Album");
  const AutoreleasePool pool;
  EXPECT_THAT(fileCalls().attributes, SizeIs(1));
  askForCells(Sizes::unknown);
  EXPECT_EQ(captionOf(0), "40x30, 3 GB");
  askForCells();
  EXPECT_EQ(captionOf(0), "40x30, -1.29 GB");
  EXPECT_THAT(fileCalls().attributes, SizeIs(2));
}

TEST_F(CaptionsOnScreenTest, OfFilesThatVanishTellNothing) {
  openAlbumOf(2);
  const AutoreleasePool pool;
  settings.thumbnailInfoDisplay = 2;
  std::filesystem::remove(folder.file("Album/00.jpg"));
  askForCells(Sizes::unknown);
  EXPECT_EQ(captionOf(0), "Zero KB, jpg");
  EXPECT_NE(captionOf(1), "Zero KB, jpg");
}

TEST_F(CaptionsOnScreenTest, StandAboveABannerAndBelowABadge) {
  folder.photo("Album/0.dng", 0);
  folder.broken("Album/1.mov", 1);
  openAlbum("Album");
  const AutoreleasePool pool;
  ASSERT_TRUE(viewIn("_textBannerView", 0));
  EXPECT_EQ(barOf(0).frame().origin.y, 0);
  const UIView badge = viewIn("__badgeView", 1);
  ASSERT_TRUE(badge);
  EXPECT_EQ(badge.frame().origin.y + badge.frame().size.height, 77);
  EXPECT_EQ(barOf(1).frame().origin.y, 77);
}

TEST_F(CaptionsOnScreenTest, MoveNoBadgesInTheListOfAlbums) {
  openListWithBadges();
  const AutoreleasePool pool;
  int badges = 0;
  for (const UIView photo : viewsOf(top().view(), PUPhotoView::classObject())) {
    const Object helper = PUPhotoView(photo.get()).contentHelper();
    layOutContentOf(helper);
    const UIView badge(objectField(helper, "__badgeView").get());
    if (!badge) continue;
    ++badges;
    EXPECT_EQ(badge.frame().origin.y + badge.frame().size.height, photo.bounds().size.height);
  }
  EXPECT_GE(badges, 2);
}

TEST_F(CaptionsOnScreenTest, MakeBadgesOfPanoramasNarrowerAtEveryLayout) {
  openListWithBadges();
  ASSERT_FALSE(desktop::photos_ui::openAlbum("Panoramas"));
  settle();
  const AutoreleasePool pool;
  const UIView badge = viewIn("__badgeView", 0);
  ASSERT_TRUE(badge);
  const CGFloat width = badge.frame().size.width;
  EXPECT_LT(width, 375.0 / 3);
  EXPECT_EQ(badge.frame().origin.y, 130) << "above no caption";
  layOutContentOf(helperOf(0));
  EXPECT_EQ(badge.frame().size.width, width / 4);
  ASSERT_FALSE(desktop::photos_ui::openAlbum("Album"));
  settle();
  EXPECT_EQ(viewIn("__badgeView", 0).frame(), (CGRect{{0, 57}, {93, 20}}));
}

TEST_F(CaptionsOnScreenTest, AreMissingFromTheLastCellOfASharedAlbum) {
  folder.write("Album/.shared", "");
  openAlbumOf(2);
  const AutoreleasePool pool;
  EXPECT_EQ(alphaOf(barOf(1)), 1);
  EXPECT_EQ(alphaOf(barOf(2)), 0);
  for (int count = 0; count < 3; ++count) askForCells();
  EXPECT_EQ(alphaOf(barOf(2)), 0);
}

TEST_F(CaptionsOnScreenTest, FollowASettingWhenTheirItemIsAskedForAgain) {
  openAlbumOf(2);
  const AutoreleasePool pool;
  settings.thumbnailInfoDisplay = 2;
  layOutCells();
  EXPECT_EQ(captionOf(0), "40x30, jpg");
  askForCells();
  EXPECT_NE(captionOf(0), "40x30, jpg");
}

TEST_F(CaptionsOnScreenTest, TurnedOffGoAtTheNextLayoutAndStayAway) {
  openAlbumOf(2);
  const AutoreleasePool pool;
  settings.thumbnailInfoDisplay = 0;
  EXPECT_EQ(alphaOf(barOf(0)), 1);
  layOutCells();
  EXPECT_EQ(alphaOf(barOf(0)), 0);
  settings.thumbnailInfoDisplay = 1;
  layOutCells();
  askForCells();
  EXPECT_EQ(alphaOf(barOf(0)), 0);
}

TEST_F(CaptionsOnScreenTest, TurnedOnComeWithNewCellsOnly) {
  settings.thumbnailInfoDisplay = 0;
  openAlbumOf(2);
  const AutoreleasePool pool;
  settings.thumbnailInfoDisplay = 1;
  for (int count = 0; count < 3; ++count) askForCells();
  EXPECT_FALSE(barOf(0));
  ASSERT_FALSE(desktop::photos_ui::goBack());
  settle();
  ASSERT_FALSE(desktop::photos_ui::openAlbum("Album"));
  settle();
  EXPECT_TRUE(barOf(0));
}

TEST_F(CaptionsOnScreenTest, OfThousandsOfThumbnailsCostAFewViewsAndOneLookAFile) {
  constexpr int photos = 200;
  settings.thumbnailInfoDisplay = 2;
  openAlbumOf(photos);
  const auto scroll = [](double y) {
    const AutoreleasePool pool;
    send<void, "setContentOffset:">(collection(), CGPoint{0, y});
    settle(0.02);
  };
  constexpr double end = photos / 4.0 * 94 - 600;
  const auto toAndFro = [&] {
    for (double y = 0; y < end; y += 94) scroll(y);
    for (double y = end; y > 0; y -= 94) scroll(y);
  };
  toAndFro();
  const long before = liveBoundObjects();
  for (int shown = 0; shown < 10'000; shown += 2 * photos) toAndFro();
  EXPECT_EQ(liveBoundObjects(), before);
  EXPECT_THAT(fileCalls().attributes, SizeIs(photos));
  EXPECT_THAT(fileCalls().existence, SizeIs(0));
}

}  // namespace
}  // namespace lumifact
