// SPDX-License-Identifier: MIT
#include "desktop/uikit/graphics/image_context.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cmath>

#include "bridge/uikit.h"
#include "desktop/uikit/application/uikit.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/graphics/ui_image.h"

namespace desktop::uikit {
namespace {

constexpr std::uint32_t red = 0xffff0000;

class ImageContextTest : public testing::Test {
 protected:
  ImageContextTest() { registerUIKit(); }
  ~ImageContextTest() override {
    while (UIGraphicsGetCurrentContext()) UIGraphicsEndImageContext();
  }

  static void fill(CGRect rect, Color color) {
    const CGContextRef context = UIGraphicsGetCurrentContext();
    CGContextSetFillColorWithColor(context, UIColorState::make(color).cgColor());
    CGContextFillRect(context, rect);
  }
  static SharedBitmap picture() {
    return UIImageState::bitmapOf(Object(UIGraphicsGetImageFromCurrentImageContext()));
  }

  const AutoreleasePool pool;
};

TEST_F(ImageContextTest, FillsOnePixelWithAColor) {
  UIGraphicsBeginImageContext({1, 1});
  fill({{0, 0}, {1, 1}}, {1, 0, 0, 1});
  const UIImage image(UIGraphicsGetImageFromCurrentImageContext());
  UIGraphicsEndImageContext();
  EXPECT_EQ((send<CGSize, "size">(image)), (CGSize{1, 1}));
  EXPECT_EQ((send<CGFloat, "scale">(image)), 1);
  EXPECT_EQ(UIImageState::bitmapOf(image)->pixels, std::vector<std::uint32_t>{red});
  EXPECT_EQ(UIGraphicsGetCurrentContext(), nullptr);
}

TEST_F(ImageContextTest, BeginsTransparentAndFillsBlack) {
  UIGraphicsBeginImageContext({2, 1});
  EXPECT_EQ(picture()->pixels, (std::vector<std::uint32_t>{0, 0}));
  CGContextFillRect(UIGraphicsGetCurrentContext(), {{1, 0}, {1, 1}});
  EXPECT_EQ(picture()->pixels, (std::vector<std::uint32_t>{0, 0xff000000}));
}

TEST_F(ImageContextTest, ColorsLieOverEachOther) {
  UIGraphicsBeginImageContext({1, 1});
  fill({{0, 0}, {1, 1}}, {0, 0, 1, 0.5});
  EXPECT_EQ(picture()->pixels[0], 0x80000080u);
  fill({{0, 0}, {1, 1}}, {1, 1, 1, 0.5});
  EXPECT_EQ(picture()->pixels[0], 0xc08080c0u);
}

TEST_F(ImageContextTest, EdgesBetweenPixelsAreHalfFilled) {
  UIGraphicsBeginImageContext({3, 1});
  fill({{0.5, 0}, {1.75, 1}}, {1, 0, 0, 1});
  EXPECT_EQ(picture()->pixels, (std::vector<std::uint32_t>{0x80800000, red, 0x40400000}));
}

TEST_F(ImageContextTest, TakesAnyRectangle) {
  UIGraphicsBeginImageContext({2, 2});
  const std::vector<std::uint32_t> nothing(4);
  for (const CGRect rect : {CGRect{{NAN, 0}, {1, 1}}, CGRect{{0, 0}, {INFINITY, 1}},
                            CGRect{{5, 5}, {1, 1}}, CGRect{{-5, -5}, {1, 1}}, CGRect{}}) {
    fill(rect, {1, 0, 0, 1});
    EXPECT_EQ(picture()->pixels, nothing) << rect.origin.x;
  }
  fill({{2, 2}, {-1, -1}}, {1, 0, 0, 1});
  EXPECT_EQ(picture()->pixels, (std::vector<std::uint32_t>{0, 0, 0, red}));
  fill({{-1e300, -1e300}, {2e300, 2e300}}, {1, 0, 0, 1});
  EXPECT_EQ(picture()->pixels, std::vector<std::uint32_t>(4, red));
}

TEST_F(ImageContextTest, ContextsNest) {
  UIGraphicsBeginImageContext({1, 1});
  const CGContextRef outer = UIGraphicsGetCurrentContext();
  UIGraphicsBeginImageContext({2, 2});
  EXPECT_NE(UIGraphicsGetCurrentContext(), outer);
  EXPECT_EQ(picture()->width, 2);
  UIGraphicsEndImageContext();
  EXPECT_EQ(UIGraphicsGetCurrentContext(), outer);
  EXPECT_EQ(picture()->width, 1);
}

TEST_F(ImageContextTest, WithoutAContextNothingHappens) {
  UIGraphicsEndImageContext();
  EXPECT_EQ(UIGraphicsGetCurrentContext(), nullptr);
  EXPECT_EQ(UIGraphicsGetImageFromCurrentImageContext(), nullptr);
  fill({{0, 0}, {1, 1}}, {1, 0, 0, 1});
}

TEST_F(ImageContextTest, AContextThatEndedIsLeftAlone) {
  UIGraphicsBeginImageContext({1, 1});
  const CGContextRef ended = UIGraphicsGetCurrentContext();
  UIGraphicsEndImageContext();
  CGContextSetFillColorWithColor(ended, nullptr);
  CGContextFillRect(ended, {{0, 0}, {1, 1}});
}

TEST_F(ImageContextTest, AbsurdSizesGiveNoContext) {
  for (const CGSize size : {CGSize{0, 5}, CGSize{-1, 5}, CGSize{NAN, 5}, CGSize{INFINITY, 1},
                            CGSize{1e9, 1e9}, CGSize{8192, 8192}}) {
    UIGraphicsBeginImageContext({1, 1});
    UIGraphicsBeginImageContext(size);
    EXPECT_EQ(UIGraphicsGetCurrentContext(), nullptr) << size.width;
    EXPECT_EQ(UIGraphicsGetImageFromCurrentImageContext(), nullptr) << size.width;
    UIGraphicsEndImageContext();
    EXPECT_NE(UIGraphicsGetCurrentContext(), nullptr) << size.width;
    UIGraphicsEndImageContext();
  }
}

// As an extension finds them that was not linked with the program.
TEST_F(ImageContextTest, ItsFunctionsAreFoundByName) {
  for (const char* name : {"UIGraphicsBeginImageContext", "UIGraphicsGetCurrentContext",
                           "UIGraphicsGetImageFromCurrentImageContext", "UIGraphicsEndImageContext",
                           "CGContextSetFillColorWithColor", "CGContextFillRect"})
    EXPECT_NE(dlsym(RTLD_DEFAULT, name), nullptr) << name;
}

}  // namespace
}  // namespace desktop::uikit
