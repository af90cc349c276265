// SPDX-License-Identifier: MIT
#include "desktop/uikit/text/attributed_text.h"

#include <cmath>

#include "bridge/uikit.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/text/ns_paragraph_style.h"
#include "tests/desktop/uikit/application_test.h"

namespace desktop::uikit {
namespace {

class AttributedTextTest : public ApplicationTest {
 protected:
  static constexpr FontFace standard{.size = 12};

  static Owned<NSMutableAttributedString> text(const char* utf8) {
    return NSMutableAttributedString::withString(NSString::make(utf8));
  }
};

TEST_F(AttributedTextTest, TextWithoutAttributesHasTheGivenFace) {
  const AttributedText plain = AttributedText::of(text("plain").get(), standard);
  EXPECT_EQ(plain.text, u"plain");
  ASSERT_EQ(plain.runs.size(), 1u);
  EXPECT_EQ(plain.runs[0].face, standard);
  EXPECT_EQ(plain.runs[0].style, ParagraphStyle{});
  EXPECT_FALSE(plain.runs[0].color);
}

TEST_F(AttributedTextTest, NothingIsEmptyText) {
  EXPECT_EQ(AttributedText::of({}, standard).text, u"");
  EXPECT_EQ(AttributedText::of({}, standard).runs.size(), 1u);
  EXPECT_EQ(AttributedText::of(text("").get(), standard).runs.size(), 1u);
}

TEST_F(AttributedTextTest, RunsHoldFontStyleAndColor) {
  const auto made = text("one two");
  const auto style = makeNew<NSMutableParagraphStyle>();
  style->setHeadIndent(22);
  style->setParagraphSpacing(1.5);
  made->addAttribute(paragraphStyleAttributeName(), style, {0, 7});
  made->addAttribute(fontAttributeName(), UIFont::systemFont(13), {0, 7});
  made->addAttribute(NSString::make("NSColor"), UIColor::greenColor(), {4, 3});
  const AttributedText read = AttributedText::of(made.get(), standard);
  ASSERT_EQ(read.runs.size(), 2u);
  EXPECT_EQ(read.runs[0].face, FontFace{.size = 13});
  EXPECT_EQ(read.runs[0].style, (ParagraphStyle{.spacing = 1.5, .headIndent = 22}));
  EXPECT_EQ(read.runs[1].start, 4u);
  EXPECT_EQ(read.runs[1].color, (Color{0, 1, 0, 1}));
  EXPECT_EQ(&read.runAt(3), &read.runs[0]);
  EXPECT_EQ(&read.runAt(4), &read.runs[1]);
  EXPECT_EQ(&read.runAt(1000), &read.runs[1]);
}

TEST_F(AttributedTextTest, AttributesOfOtherKindsAreIgnored) {
  const auto made = text("text");
  for (const char* const name : {"NSFont", "NSParagraphStyle", "NSColor", "NSLink"})
    made->addAttribute(NSString::make(name), NSString::make("value"), {0, 4});
  const AttributedText read = AttributedText::of(made.get(), standard);
  EXPECT_EQ(read.runs[0].face, standard);
  EXPECT_FALSE(read.runs[0].color);
}

TEST_F(AttributedTextTest, ParagraphStylesAreCopiedAsTheyAre) {
  const auto style = makeNew<NSMutableParagraphStyle>();
  EXPECT_EQ((send<NSInteger, "alignment">(style)), 4);
  EXPECT_EQ((send<CGFloat, "paragraphSpacing">(style)), 0);
  style->setParagraphSpacingBefore(3);
  style->setFirstLineHeadIndent(NAN);
  send<void, "setAlignment:">(style, NSInteger{1});
  send<void, "setAlignment:">(style, NSInteger{77});
  const auto copy = Owned<NSObject>::adopt(send<NSObject, "copy">(style));
  style->setParagraphSpacingBefore(9);
  EXPECT_EQ((send<CGFloat, "paragraphSpacingBefore">(copy)), 3);
  EXPECT_EQ((send<CGFloat, "firstLineHeadIndent">(copy)), 0);
  EXPECT_EQ((send<NSInteger, "alignment">(copy)), 1);
  EXPECT_FALSE(copy->isEqual(style));
  const auto again = Owned<NSObject>::adopt(send<NSObject, "mutableCopy">(copy));
  EXPECT_TRUE(copy->isEqual(again));
  EXPECT_TRUE(isKindOf(again, NSMutableParagraphStyleState::classObject()));
}

}  // namespace
}  // namespace desktop::uikit
