// SPDX-License-Identifier: MIT
#include "desktop/uikit/ui_font.h"

#include <gtest/gtest.h>

#include "bridge/uikit.h"
#include "desktop/uikit/uikit.h"

namespace desktop::uikit {
namespace {

using bridge::send;

class UIFontTest : public testing::Test {
 protected:
  UIFontTest() { registerUIKit(); }

  const bridge::AutoreleasePool pool;
};

TEST_F(UIFontTest, IsFoundByName) {
  EXPECT_EQ(objc_getClass("UIFont"), UIFont::classObject());
  registerUIKit();
  EXPECT_EQ(objc_getClass("UIFont"), UIFont::classObject());
}

TEST_F(UIFontTest, HasTheMeasuresOfItsSize) {
  const auto font = bridge::UIFont::systemFont(20);
  EXPECT_EQ((send<CGFloat, "pointSize">(font)), 20);
  EXPECT_NEAR((send<CGFloat, "lineHeight">(font)), 24.2045, 0.0001);
  EXPECT_NEAR((send<CGFloat, "ascender">(font)), 19.375, 0.0001);
  EXPECT_NEAR((send<CGFloat, "descender">(font)), -4.8295, 0.0001);
  EXPECT_EQ((send<CGFloat, "leading">(font)), 0);
  EXPECT_EQ((send<bridge::NSString, "fontName">(font).utf8()), "Inter");
}

TEST_F(UIFontTest, TakesAnySize) {
  EXPECT_EQ((send<CGFloat, "lineHeight">(bridge::UIFont::systemFont(0))), 0);
  EXPECT_LT((send<CGFloat, "lineHeight">(bridge::UIFont::systemFont(-3))), 0);
}

TEST_F(UIFontTest, EqualsFontsOfItsSizeOnly) {
  const auto font = bridge::UIFont::systemFont(12);
  EXPECT_TRUE(font.isEqual(bridge::UIFont::systemFont(12)));
  EXPECT_FALSE(font.isEqual(bridge::UIFont::systemFont(13)));
  EXPECT_FALSE(font.isEqual(bridge::NSString::make("font")));
  EXPECT_FALSE(font.isEqual(bridge::Object()));
  EXPECT_EQ((send<NSUInteger, "hash">(font)),
            (send<NSUInteger, "hash">(bridge::UIFont::systemFont(12))));
}

TEST_F(UIFontTest, IsGoneWithItsLastOwner) {
  const long before = UIFont::liveObjects();
  {
    const bridge::AutoreleasePool inner;
    const auto font = bridge::UIFont::systemFont(12);
    const auto copy = bridge::Owned<bridge::UIFont>::adopt(send<bridge::UIFont, "copy">(font));
    EXPECT_EQ(copy.get(), font);
    EXPECT_EQ(UIFont::liveObjects(), before + 1);
  }
  EXPECT_EQ(UIFont::liveObjects(), before);
}

}  // namespace
}  // namespace desktop::uikit
