// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "desktop/photos_ui/one_up/pu_one_up_view_controller.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/base/screen.h"
#include "tests/desktop/photos_ui/one_up_screen.h"

namespace desktop::photos_ui {
namespace {

class OneUpZoomTest : public OneUpTest {
 protected:
  // Photos of 1500 x 1000 pixels, twice as many as the screen's 750 across.
  void showLarge(long item = 0) {
    for (int index = 0; index < 3; ++index)
      addPicture(std::to_string(index) + ".bmp", index, 1500, 1000);
    show(item);
  }
  static CGFloat offset() {
    return uikit::UIScrollViewState::of(currentPhoto().self()).contentOffset().x;
  }
};

TEST_F(OneUpZoomTest, ShowsAllOfThePhotoAtFirst) {
  showLarge();
  EXPECT_EQ(currentPhoto().zoom(), 1);
  EXPECT_EQ(pictureFrame(), (CGRect{{0, 208.5}, {375, 250}}));
}

TEST_F(OneUpZoomTest, LooksCloserAtTheTappedPointAndBack) {
  showLarge();
  const CGPoint point = {100, 300};
  const CGRect before = pictureFrame();
  doubleTap(point);
  EXPECT_EQ(currentPhoto().zoom(), 2.5);
  const CGRect after = pictureFrame();
  EXPECT_EQ(after.size.width, 937.5);
  EXPECT_NEAR((point.x - after.origin.x) / after.size.width,
              (point.x - before.origin.x) / before.size.width, 0.002);
  EXPECT_FALSE(navigation().isNavigationBarHidden()) << "two taps are not one";
  doubleTap(point);
  EXPECT_EQ(pictureFrame(), before);
}

TEST_F(OneUpZoomTest, KeepsThePointAlsoWhereThePhotoStartsLowerThanTheScreen) {
  addPicture("tall.bmp", 0, 600, 800);
  show(0);
  const CGPoint point = {200, 250};
  const CGRect before = pictureFrame();
  ASSERT_EQ(before, (CGRect{{0, 83.5}, {375, 500}}));
  doubleTap(point);
  const CGRect after = pictureFrame();
  EXPECT_NEAR((point.y - after.origin.y) / after.size.height,
              (point.y - before.origin.y) / before.size.height, 0.002);
}

TEST_F(OneUpZoomTest, ShowsNothingBeyondThePhoto) {
  showLarge();
  doubleTap({0, 300});
  EXPECT_EQ(pictureFrame().origin.x, 0);
  drag({100, 300}, {350, 300});
  act(OneUpAction::previous);
  doubleTap({-5, 210});
  doubleTap({375, 210});
  act(OneUpAction::zoomIn);
  drag({350, 300}, {10, 300});
  drag({350, 300}, {150, 300});
  act(OneUpAction::zoomOut);
  const CGRect frame = pictureFrame();
  EXPECT_LE(frame.origin.x, 0);
  EXPECT_GE(frame.origin.x + frame.size.width, 375);
}

TEST_F(OneUpZoomTest, StaysWithinItsLimits) {
  showLarge();
  EXPECT_EQ(currentPhoto().actualSizeZoom(), 2);
  for (int press = 0; press < 12; ++press) act(OneUpAction::zoomIn);
  EXPECT_EQ(currentPhoto().zoom(), 4) << "two pixels of the screen for one of the photo";
  act(OneUpAction::actualSize);
  EXPECT_EQ(currentPhoto().zoom(), 2);
  act(OneUpAction::fit);
  EXPECT_EQ(currentPhoto().zoom(), 1);
  act(OneUpAction::zoomOut);
  EXPECT_EQ(currentPhoto().zoom(), 1);
}

TEST_F(OneUpZoomTest, GetsMorePixelsForACloserLook) {
  showLarge();
  const auto pixels = [] {
    const AutoreleasePool pool;
    const auto& view = uikit::UIViewState::of(currentPhoto().self()).subviews().at(0);
    const auto image = as<UIImageView>(view.get()).image();
    return send<CGSize, "size">(image).width * uikit::screen().scale;
  };
  EXPECT_EQ(pixels(), 750);
  act(OneUpAction::actualSize);
  deliverPictures();
  EXPECT_EQ(pixels(), 1500);
}

TEST_F(OneUpZoomTest, MovesThePhotoUntilItsEdgeAndThenTurnsThePage) {
  showLarge(1);
  doubleTap(screenMiddle);
  const CGFloat before = offset();
  drag({250, 300}, {150, 300});
  EXPECT_EQ(currentName(), "1.bmp");
  EXPECT_NEAR(offset(), before + 90, 11);
  drag({350, 300}, {10, 300});
  EXPECT_EQ(currentName(), "1.bmp");
  EXPECT_NEAR(offset(), 937.5 - 375, 0.5);
  drag({350, 300}, {10, 300});
  EXPECT_EQ(currentName(), "2.bmp") << "from the right edge on";
}

TEST_F(OneUpZoomTest, MovesThePhotoUpAndDownAtItsEdgesToo) {
  showLarge(1);
  for (int press = 0; press < 4; ++press) act(OneUpAction::zoomIn);
  drag({10, 300}, {370, 300});
  drag({10, 300}, {370, 300});
  ASSERT_EQ(offset(), 0);
  const CGFloat before = pictureFrame().origin.y;
  drag({100, 400}, {110, 300});
  EXPECT_LT(pictureFrame().origin.y, before - 60);
  EXPECT_EQ(currentName(), "1.bmp");
}

TEST_F(OneUpZoomTest, ShowsAllAgainOfAPhotoThatIsComeBackTo) {
  showLarge(1);
  doubleTap(screenMiddle);
  act(OneUpAction::next);
  act(OneUpAction::previous);
  EXPECT_EQ(currentPhoto().zoom(), 1);
}

TEST_F(OneUpZoomTest, ShowsAllAgainWhenTheScreenIsTurned) {
  showLarge(1);
  doubleTap(screenMiddle);
  uikit::application().resize({667, 375});
  settle();
  EXPECT_EQ(currentPhoto().zoom(), 1);
}

TEST_F(OneUpZoomTest, LeavesPhotosAloneThatHaveNoPicture) {
  folder.broken("Album/broken.jpg");
  show(0);
  act(OneUpAction::zoomIn);
  EXPECT_EQ(currentPhoto().zoom(), 1);
  doubleTap(screenMiddle);
  EXPECT_EQ(currentPhoto().zoom(), 1);
}

}  // namespace
}  // namespace desktop::photos_ui
