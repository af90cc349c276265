// SPDX-License-Identifier: MIT
#include "desktop/uikit/text/ui_font.h"

#include <gtest/gtest.h>

#include <cmath>

#include "bridge/uikit.h"
#include "desktop/uikit/application/uikit.h"

namespace desktop::uikit {
namespace {

class UIFontTest : public testing::Test {
 protected:
  UIFontTest() { registerUIKit(); }

  static UIFont named(const char* name) { return UIFont::named(NSString::make(name), 12); }
  static std::string nameOf(UIFont font) { return send<NSString, "fontName">(font).utf8(); }

  const AutoreleasePool pool;
};

TEST_F(UIFontTest, IsFoundByName) {
  EXPECT_EQ(objc_getClass("UIFont"), UIFontState::classObject());
  registerUIKit();
  EXPECT_EQ(objc_getClass("UIFont"), UIFontState::classObject());
}

TEST_F(UIFontTest, HasTheMeasuresOfItsSize) {
  const auto font = UIFont::systemFont(20);
  EXPECT_EQ((send<CGFloat, "pointSize">(font)), 20);
  EXPECT_NEAR((send<CGFloat, "lineHeight">(font)), 24.2045, 0.0001);
  EXPECT_NEAR((send<CGFloat, "ascender">(font)), 19.375, 0.0001);
  EXPECT_NEAR((send<CGFloat, "descender">(font)), -4.8295, 0.0001);
  EXPECT_NEAR((send<CGFloat, "capHeight">(font)), 14.5455, 0.0001);
  EXPECT_NEAR((send<CGFloat, "xHeight">(font)), 10.9091, 0.0001);
  EXPECT_EQ((send<CGFloat, "leading">(font)), 0);
  EXPECT_EQ(nameOf(font), "Inter");
}

TEST_F(UIFontTest, ACourierLineIsAsHighAsItsSize) {
  const auto font = named("Courier");
  EXPECT_DOUBLE_EQ((send<CGFloat, "lineHeight">(font)), 12);
  EXPECT_EQ((send<NSString, "familyName">(font).utf8()), "Courier");
}

TEST_F(UIFontTest, IsNamedByFamilyAndWeight) {
  const Class font = UIFontState::classObject();
  EXPECT_EQ(nameOf(send<UIFont, "boldSystemFontOfSize:">(font, 17.0)), "Inter-Bold");
  EXPECT_EQ(nameOf(send<UIFont, "systemFontOfSize:weight:">(font, 17.0, 0.3)), "Inter-SemiBold");
  EXPECT_EQ(nameOf(send<UIFont, "systemFontOfSize:weight:">(font, 17.0, 0.4)), "Inter-Bold");
  EXPECT_EQ(nameOf(send<UIFont, "systemFontOfSize:weight:">(font, 17.0, static_cast<double>(NAN))),
            "Inter");
  EXPECT_EQ(nameOf(named("CourierNewPSMT")), "Courier");
  EXPECT_EQ(nameOf(named("Courier-Bold")), "Courier-Bold");
}

TEST_F(UIFontTest, AnUnknownNameHasNoFont) {
  EXPECT_FALSE(named("Wingdings"));
  EXPECT_FALSE(named(""));
  EXPECT_FALSE(UIFont::named({}, 12));
}

TEST_F(UIFontTest, ASizeThatIsNoneIsTheStandardOne) {
  for (const double size : {0.0, -3.0, static_cast<double>(NAN), static_cast<double>(INFINITY)})
    EXPECT_EQ((send<CGFloat, "pointSize">(UIFont::systemFont(size))), 12) << size;
  EXPECT_EQ((send<CGFloat, "pointSize">(UIFont::systemFont(0.5))), 0.5);
}

TEST_F(UIFontTest, EqualsFontsOfItsFaceAndSizeOnly) {
  const auto font = UIFont::systemFont(12);
  EXPECT_TRUE(font.isEqual(UIFont::systemFont(12)));
  EXPECT_TRUE(font.isEqual(send<UIFont, "fontWithSize:">(font, 12.0)));
  EXPECT_FALSE(font.isEqual(UIFont::systemFont(13)));
  EXPECT_FALSE(font.isEqual(named("Courier")));
  EXPECT_FALSE(font.isEqual(NSString::make("font")));
  EXPECT_FALSE(font.isEqual(Object()));
  EXPECT_EQ((send<NSUInteger, "hash">(font)), (send<NSUInteger, "hash">(UIFont::systemFont(12))));
}

TEST_F(UIFontTest, IsGoneWithItsLastOwner) {
  const long before = UIFontState::liveObjects();
  {
    const AutoreleasePool inner;
    const auto font = UIFont::systemFont(12);
    const auto copy = Owned<UIFont>::adopt(send<UIFont, "copy">(font));
    EXPECT_EQ(copy.get(), font);
    EXPECT_EQ(UIFontState::liveObjects(), before + 1);
  }
  EXPECT_EQ(UIFontState::liveObjects(), before);
}

}  // namespace
}  // namespace desktop::uikit
