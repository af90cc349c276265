// SPDX-License-Identifier: MIT
//
// A single photo whose library changes while it is open.
#include <gmock/gmock.h>

#include "desktop/photos_ui/one_up/pu_one_up_view_controller.h"
#include "desktop/uikit/touch/touch_dispatcher.h"
#include "tests/desktop/photos_ui/one_up_screen.h"

namespace desktop::photos_ui {
namespace {

using testing::Contains;
using testing::UnorderedElementsAre;
using uikit::touches;

TEST_F(OneUpTest, GoesToTheNeighbourOfAFileThatIsGone) {
  addPictures(4);
  show(1);
  removeFile("1.bmp");
  EXPECT_EQ(currentName(), "2.bmp");
  EXPECT_EQ(title(), "Jan 3, 1970");
  removeFile("0.bmp");
  EXPECT_EQ(currentName(), "2.bmp");
  EXPECT_THAT(pages(), UnorderedElementsAre("2.bmp", "3.bmp"));
  act(OneUpAction::next);
  removeFile("3.bmp");
  EXPECT_EQ(currentName(), "2.bmp");
}

TEST_F(OneUpTest, KeepsTheLookAtAPhotoWhenAnotherFileIsGone) {
  addPictures(4);
  show(2);
  act(OneUpAction::zoomIn);
  const CGRect before = pictureFrame();
  removeFile("0.bmp");
  EXPECT_EQ(currentName(), "2.bmp");
  EXPECT_EQ(pictureFrame(), before);
  EXPECT_THAT(pages(), UnorderedElementsAre("1.bmp", "2.bmp", "3.bmp"));
}

TEST_F(OneUpTest, TakesAFileThatGoesWhileAFingerTurnsThePage) {
  addPictures(4);
  show(1);
  touches().down({300, 300});
  touches().move({200, 300});
  settle(0.1);
  removeFile("1.bmp");
  touches().move({100, 300});
  settle(0.1);
  touches().up({100, 300});
  deliverPictures();
  EXPECT_THAT((std::vector<std::string>{"2.bmp", "3.bmp"}), Contains(currentName()));
  EXPECT_EQ(pictureFrame(), (CGRect{{0, 192.875}, {375, 281.25}}));
}

TEST_F(OneUpTest, LeavesWhenTheLastFileIsGone) {
  addPictures(1);
  show(0);
  removeFile("0.bmp");
  EXPECT_FALSE(isOneUpOnShow());
  EXPECT_TRUE(navigation().isToolbarHidden());
}

TEST_F(OneUpTest, LeavesWithAllThatWasOpenedFromIt) {
  addPictures(1);
  show(0);
  const auto page = makeNew<UIViewController>();
  top().navigationController().push(page, UIViewController::animated);
  settle();
  removeFile("0.bmp");
  EXPECT_EQ(title(), "Album");
}

TEST_F(OneUpTest, ClosesThePreviewOfAFileThatIsGone) {
  addPictures(1);
  peek(0);
  removeFile("0.bmp");
  EXPECT_FALSE(isOneUpOnShow());
}

}  // namespace
}  // namespace desktop::photos_ui
