// SPDX-License-Identifier: MIT
#include "desktop/uikit/text/string_drawing.h"

#include <gtest/gtest.h>

#include "bridge/uikit.h"
#include "desktop/uikit/application/uikit.h"
#include "desktop/uikit/text/utf16.h"

namespace desktop::uikit {
namespace {

class StringDrawingTest : public testing::Test {
 protected:
  StringDrawingTest() { registerUIKit(); }

  static CGSize sizeOf(const char* text, Object font) {
    const auto attributes = makeNew<NSMutableDictionary>();
    attributes->set(font, NSString(NSFontAttributeName));
    return sizeWithAttributes(NSString::make(text), attributes.get());
  }

  const AutoreleasePool pool;
};

TEST_F(StringDrawingTest, ALineIsAsHighAsItsFont) {
  const auto font = UIFont::systemFont(12);
  const CGSize size = sizeOf("0000x0000, mgj", font);
  EXPECT_DOUBLE_EQ(size.height, (send<CGFloat, "lineHeight">(font)));
  EXPECT_NEAR(size.height, 14.52, 0.01);
  EXPECT_NEAR(size.width, 14 * 7.2, 0.01);
}

TEST_F(StringDrawingTest, LinesStandBelowEachOther) {
  const auto font = UIFont::systemFont(10);
  const CGSize one = sizeOf("longest", font);
  const CGSize three = sizeOf("a\nlongest\n", font);
  EXPECT_DOUBLE_EQ(three.width, one.width);
  EXPECT_DOUBLE_EQ(three.height, 3 * one.height);
}

TEST_F(StringDrawingTest, LoneSurrogatesAreMeasuredToo) {
  const auto half = stringOf(u"\U0001F4F7z").substringFrom(1);
  EXPECT_NEAR(sizeWithAttributes(half, {}).width, 2 * 7.2, 0.01);
}

TEST_F(StringDrawingTest, TheAttributeNameHasThePlatformsValue) {
  EXPECT_TRUE(NSString(NSFontAttributeName).isEqualToString(fontAttributeName()));
}

TEST_F(StringDrawingTest, EveryKindOfStringCanBeMeasured) {
  const auto font = UIFont::systemFont(12);
  EXPECT_GT(sizeOf("\xE5\x86\x99\xE7\x9C\x9F", font).width, 0);
  EXPECT_EQ(sizeOf("", font).width, 0);
}

TEST_F(StringDrawingTest, WithoutAFontTextIsTwelvePointsHigh) {
  const CGSize expected = sizeOf("text", UIFont::systemFont(12));
  EXPECT_EQ(sizeWithAttributes(NSString::make("text"), {}), expected);
  EXPECT_EQ(sizeOf("text", NSString::make("no font")), expected);
}

}  // namespace
}  // namespace desktop::uikit
