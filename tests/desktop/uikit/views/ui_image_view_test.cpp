// SPDX-License-Identifier: MIT
#include "desktop/uikit/views/ui_image_view.h"

#include <gtest/gtest.h>

#include <cmath>

#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/graphics/ui_image.h"
#include "desktop/uikit/views/ui_view.h"
#include "tests/desktop/uikit/application_test.h"
#include "tests/desktop/uikit/recording_canvas.h"

namespace desktop::uikit {
namespace {

UIImage picture(int width, int height, CGFloat scale = 1) {
  Bitmap bitmap{width, height, {}};
  bitmap.pixels.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  return UIImageState::make(std::make_shared<const Bitmap>(std::move(bitmap)), scale);
}

class UIImageViewTest : public ApplicationTest {
 protected:
  UIImageViewTest() { window().addSubview(view); }

  Owned<UIImageView> view = bridge::makeView<UIImageView>({{10, 10}, {100, 50}});
};

TEST_F(UIImageViewTest, AnImagesSizeIsInPoints) {
  EXPECT_EQ((send<CGSize, "size">(picture(30, 20, 2))), (CGSize{15, 10}));
  for (const CGFloat scale : {0.0, -1.0, static_cast<double>(NAN)})
    EXPECT_EQ((send<CGSize, "size">(picture(30, 20, scale))), (CGSize{30, 20})) << scale;
  EXPECT_EQ((send<CGSize, "size">(UIImageState::make(nullptr, 1))), CGSize{});
  EXPECT_EQ(UIImageState::bitmapOf(NSString::make("no image")), nullptr);
}

TEST_F(UIImageViewTest, ContentModesPlaceTheImage) {
  const struct {
    ContentMode mode;
    CGRect rect;
  } cases[] = {{ContentMode::scaleToFill, {{0, 0}, {100, 50}}},
               {ContentMode::aspectFit, {{25, 0}, {50, 50}}},
               {ContentMode::aspectFill, {{0, -25}, {100, 100}}},
               {ContentMode::center, {{40, 15}, {20, 20}}}};
  view->setImage(picture(20, 20));
  for (const auto& [mode, rect] : cases) {
    send<void, "setContentMode:">(view.get(), static_cast<NSInteger>(mode));
    RecordingCanvas canvas;
    UIImageViewState::of(view.get()).drawContent(&canvas);
    ASSERT_EQ(canvas.images.size(), 1u);
    EXPECT_EQ(canvas.images[0], rect) << static_cast<int>(mode);
  }
}

TEST_F(UIImageViewTest, NothingIsDrawnWithoutAnImageOrRoom) {
  RecordingCanvas canvas;
  UIImageViewState::of(view.get()).drawContent(&canvas);
  view->setImage(picture(0, 5));
  UIImageViewState::of(view.get()).drawContent(&canvas);
  view->setImage(picture(5, 5));
  view->setFrame({});
  UIImageViewState::of(view.get()).drawContent(&canvas);
  EXPECT_TRUE(canvas.images.empty());
}

TEST_F(UIImageViewTest, IsAsLargeAsItsImage) {
  const auto made = Owned<UIImageView>::adopt(send<UIImageView, "initWithImage:">(
      send<id, "alloc">(UIImageViewState::classObject()), picture(30, 20)));
  EXPECT_EQ(made->frame(), (CGRect{{0, 0}, {30, 20}}));
  made->setImage(picture(60, 20, 2));
  made->sizeToFit();
  EXPECT_EQ(made->frame(), (CGRect{{0, 0}, {30, 10}}));
}

TEST_F(UIImageViewTest, AnotherImageIsPainted) {
  screen().damage.take();
  const auto image = picture(5, 5);
  view->setImage(image);
  EXPECT_FALSE(screen().damage.isEmpty());
  screen().damage.take();
  view->setImage(image);
  EXPECT_TRUE(screen().damage.isEmpty());
}

TEST_F(UIImageViewTest, TakesNoTouches) {
  EXPECT_FALSE(UIViewState::of(view.get()).isUserInteractionEnabled());
}

}  // namespace
}  // namespace desktop::uikit
