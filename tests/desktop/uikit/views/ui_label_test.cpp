// SPDX-License-Identifier: MIT
#include "desktop/uikit/views/ui_label.h"

#include <cmath>

#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/text/ui_font.h"
#include "desktop/uikit/text/utf16.h"
#include "tests/desktop/uikit/application_test.h"

namespace desktop::uikit {
namespace {

// In Courier of 10 points a letter is 6 points wide and a line 10 high.
class UILabelTest : public ApplicationTest {
 protected:
  UILabelTest() {
    label = bridge::makeView<UILabel>({{0, 0}, {60, 20}});
    label->setFont(UIFont::named(NSString::make("Courier"), 10));
    window().addSubview(label);
  }

  void show(std::u16string_view text) const { label->setText(stringOf(text)); }
  std::vector<std::u16string> texts() const {
    std::vector<std::u16string> all;
    for (const LabelLine& line : UILabelState::of(label.get()).lines()) all.push_back(line.text);
    return all;
  }
  LabelLine line() const { return UILabelState::of(label.get()).lines().at(0); }
  void breakBy(LineBreakMode mode) const {
    send<void, "setLineBreakMode:">(label, static_cast<NSInteger>(mode));
  }
  CGSize fitting(CGSize size) const { return send<CGSize, "sizeThatFits:">(label, size); }

  using Texts = std::vector<std::u16string>;
  Owned<UILabel> label;
};

TEST_F(UILabelTest, HasThePlatformsDefaults) {
  const auto fresh = bridge::makeView<UILabel>({});
  EXPECT_FALSE(fresh->text());
  EXPECT_EQ((send<CGFloat, "pointSize">(send<UIFont, "font">(fresh))), 17);
  EXPECT_EQ(UIColorState::valueOf(send<UIColor, "textColor">(fresh)), colors::black);
  EXPECT_EQ((send<NSInteger, "textAlignment">(fresh)), 4);
  EXPECT_EQ((send<NSInteger, "lineBreakMode">(fresh)), 4);
  EXPECT_EQ((send<NSInteger, "numberOfLines">(fresh)), 1);
  EXPECT_FALSE((send<bool, "isUserInteractionEnabled">(fresh)));
}

TEST_F(UILabelTest, ALineStandsInTheMiddleOfTheHeight) {
  show(u"text");
  EXPECT_EQ(texts(), Texts{u"text"});
  EXPECT_EQ(line().baseline, (CGPoint{0, 5 + 7.54}));
  label->setTextAlignment(alignCenter);
  EXPECT_EQ(line().baseline.x, 18);
  send<void, "setTextAlignment:">(label, NSInteger{2});
  EXPECT_EQ(line().baseline.x, 36);
}

TEST_F(UILabelTest, TextThatIsTooLongIsCut) {
  show(u"a text that is too long");
  EXPECT_EQ(texts(), Texts{u"a text th\u2026"});
  breakBy(LineBreakMode::byTruncatingHead);
  EXPECT_EQ(texts(), Texts{u"\u2026 too long"});
  breakBy(LineBreakMode::byTruncatingMiddle);
  EXPECT_EQ(texts(), Texts{u"a tex\u2026long"});
  breakBy(LineBreakMode::byClipping);
  EXPECT_EQ(texts(), Texts{u"a text that is too long"});
}

TEST_F(UILabelTest, BlanksAtTheEndNeedNoRoom) {
  show(u"ten letter    ");
  EXPECT_EQ(texts(), Texts{u"ten letter    "});
  label->setAdjustsFontSizeToFitWidth(true);
  EXPECT_EQ(line().face.size, 10);
}

TEST_F(UILabelTest, CuttingNeverSplitsACharacter) {
  show(u"\U0001F4F7\U0001F4F7\U0001F4F7\U0001F4F7\U0001F4F7\U0001F4F7\U0001F4F7");
  for (const LineBreakMode mode :
       {LineBreakMode::byTruncatingHead, LineBreakMode::byTruncatingMiddle,
        LineBreakMode::byTruncatingTail}) {
    breakBy(mode);
    for (double width = 1; width < 90; width += 3) {
      label->setFrame({{0, 0}, {width, 20}});
      const std::u16string shown = texts()[0];
      EXPECT_EQ(withoutLoneSurrogates(shown), shown) << width;
    }
  }
}

TEST_F(UILabelTest, OneLineShowsTheFirstParagraphOnly) {
  show(u"one\ntwo");
  EXPECT_EQ(texts(), Texts{u"one\u2026"});
  breakBy(LineBreakMode::byClipping);
  EXPECT_EQ(texts(), Texts{u"one"});
}

TEST_F(UILabelTest, LinesAreAsManyAsThereIsRoomFor) {
  label->setNumberOfLines(0);
  show(u"some words that take four lines");
  label->setFrame({{0, 0}, {60, 100}});
  EXPECT_EQ(texts(), (Texts{u"some words ", u"that take ", u"four lines"}));
  EXPECT_EQ(line().baseline.y, 35 + 7.54);
  label->setFrame({{0, 0}, {60, 20}});
  EXPECT_EQ(texts(), (Texts{u"some words ", u"that take\u2026"}));
  label->setFrame({{0, 0}, {60, 100}});
  label->setNumberOfLines(2);
  EXPECT_EQ(texts(), (Texts{u"some words ", u"that take\u2026"}));
}

TEST_F(UILabelTest, FitsAroundItsText) {
  show(u"some words that take lines");
  EXPECT_EQ(fitting({60, 5}), (CGSize{156, 10}));
  EXPECT_EQ((send<CGSize, "intrinsicContentSize">(label)), (CGSize{156, 10}));
  label->setNumberOfLines(0);
  EXPECT_EQ(fitting({60, 5}), (CGSize{60, 30}));
  EXPECT_EQ(fitting({0, 0}), (CGSize{156, 10}));
  label->setNumberOfLines(2);
  EXPECT_EQ(fitting({60, 5}), (CGSize{60, 20}));
  label->setFont(UIFont::systemFont(12));
  label->setNumberOfLines(1);
  EXPECT_EQ(fitting({0, 0}).height, 15);  // 14.52 in whole pixels of a half point
  label->setText({});
  EXPECT_EQ(fitting({60, 5}), CGSize{});
}

TEST_F(UILabelTest, ShrinksToItsWidthWithoutALimit) {
  label->setAdjustsFontSizeToFitWidth(true);
  show(u"0123456789");
  EXPECT_EQ(line().face.size, 10);
  show(u"01234567890123456789");
  EXPECT_DOUBLE_EQ(line().face.size, 5);
  EXPECT_EQ(line().text, u"01234567890123456789");
  show(std::u16string(400, u'x'));
  EXPECT_NEAR(line().face.size, 0.25, 1e-9);
}

TEST_F(UILabelTest, ShrinksNoFurtherThanItsLimit) {
  label->setAdjustsFontSizeToFitWidth(true);
  label->setMinimumFontSize(4);
  show(std::u16string(100, u'x'));
  EXPECT_EQ(line().face.size, 4);
  EXPECT_EQ(line().text, std::u16string(24, u'x') + u'\u2026');
  label->setMinimumFontSize(0);
  send<void, "setMinimumScaleFactor:">(label, 0.5);
  EXPECT_EQ(line().face.size, 5);
}

TEST_F(UILabelTest, HasItsOwnColorWhileHighlighted) {
  show(u"text");
  label->setTextColor(UIColor::greenColor());
  send<void, "setHighlightedTextColor:">(label, UIColor::whiteColor());
  EXPECT_EQ(line().color, (Color{0, 1, 0, 1}));
  send<void, "setHighlighted:">(label, true);
  EXPECT_EQ(line().color, colors::white);
}

TEST_F(UILabelTest, AttributedTextBringsItsOwnLook) {
  const auto text = NSMutableAttributedString::withString(NSString::make("text"));
  text->addAttribute(fontAttributeName(), UIFont::systemFont(13), {0, 4});
  text->addAttribute(NSString::make("NSColor"), UIColor::grayColor(), {0, 4});
  send<void, "setAttributedText:">(label, text.get());
  EXPECT_EQ(label->text().utf8(), "text");
  EXPECT_EQ(line().face, FontFace{.size = 13});
  EXPECT_EQ(line().color, Color::white(0.5));
  show(u"plain");
  EXPECT_EQ(line().text, u"plain");
}

TEST_F(UILabelTest, AChangeIsPaintedAgain) {
  screen().damage.take();
  show(u"text");
  EXPECT_FALSE(screen().damage.isEmpty());
  screen().damage.take();
  show(u"text");
  EXPECT_TRUE(screen().damage.isEmpty());
}

TEST_F(UILabelTest, AnythingIsShownInSomeWay) {
  label->setAdjustsFontSizeToFitWidth(true);
  for (const std::u16string& text : {std::u16string(50'000, u'x'), std::u16string(3, u'\0'),
                                     std::u16string(u"\n\n"), std::u16string(u"\x05D0\x05D1")})
    for (const NSInteger lines : {0L, 1L, -3L})
      for (const double width : {0.0, -1.0, 3.0, 1e300, static_cast<double>(NAN)}) {
        show(text);
        label->setNumberOfLines(lines);
        label->setFrame({{0, 0}, {width, 20}});
        EXPECT_LE(texts().size(), 2u);
        EXPECT_TRUE(std::isfinite(fitting({width, width}).height));
      }
  label->setFont({});
  EXPECT_EQ((send<CGFloat, "pointSize">(send<UIFont, "font">(label))), 17);
  send<void, "setAttributedText:">(label, NSAttributedString());
  EXPECT_TRUE(texts().empty());
}

TEST_F(UILabelTest, LeavesNothingBehind) {
  const long before = liveBoundObjects();
  {
    const AutoreleasePool inner;
    const auto other = bridge::makeView<UILabel>({{0, 0}, {60, 20}});
    other->setText(NSString::make("text"));
    other->setTextColor(UIColor::whiteColor());
    application().prepareFrame();
  }
  EXPECT_EQ(liveBoundObjects(), before);
}

}  // namespace
}  // namespace desktop::uikit
