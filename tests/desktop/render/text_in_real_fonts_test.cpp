// SPDX-License-Identifier: MIT
//
// Text views and labels in the fonts that they are painted in.
#include <random>

#include "desktop/render/qt_text_engine.h"
#include "desktop/uikit/controls/ui_text_view.h"
#include "desktop/uikit/text/utf16.h"
#include "desktop/uikit/views/ui_label.h"
#include "tests/desktop/uikit/application_test.h"

namespace desktop::uikit {
namespace {

class TextInRealFontsTest : public ApplicationTest {
 protected:
  TextInRealFontsTest() { setTextEngine(render::makeQtTextEngine()); }
  ~TextInRealFontsTest() override { setTextEngine(nullptr); }

  static Owned<UITextView> textView(std::u16string_view text, UIFont font, double indent,
                                    double width) {
    const auto style = makeNew<NSMutableParagraphStyle>();
    style->setHeadIndent(indent);
    style->setParagraphSpacing(1.5);
    const auto attributed = NSMutableAttributedString::withString(stringOf(text));
    attributed->addAttribute(fontAttributeName(), font, {0, text.size()});
    attributed->addAttribute(paragraphStyleAttributeName(), style, {0, text.size()});
    auto view = bridge::makeView<UITextView>({{0, 0}, {width, 300}});
    view->setAttributedText(attributed);
    return view;
  }

  // Words of all lengths, some with letters beyond ASCII, in a few paragraphs.
  static std::u16string randomText(std::mt19937& random) {
    constexpr std::u16string_view letters = u"aeimnrstw01.,/-fj\u00E9W";
    std::u16string text;
    for (auto words = 3 + random() % 20; words > 0; --words) {
      for (auto length = 1 + random() % 12; length > 0; --length)
        text += letters[random() % letters.size()];
      text += random() % 6 == 0 ? u'\n' : u' ';
    }
    return text;
  }
};

TEST_F(TextInRealFontsTest, AReportHasFiftyLettersALine) {
  const auto courier = UIFont::named(NSString::make("Courier"), 12);
  const auto view = textView(std::u16string(50 + 47 + 1, u'x'), courier, 22, 375);
  const auto lines = UITextViewState::of(view.get()).layout().lines(0, 1000);
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines[0].length, 50u);
  EXPECT_EQ(lines[1].length, 47u);
  EXPECT_EQ(lines[1].frame.origin, (CGPoint{22, 12}));
  EXPECT_EQ(view->contentSize().height, 36 + 16);
}

TEST_F(TextInRealFontsTest, FittingAViewToItsTextLeavesTheLinesAsTheyAre) {
  std::mt19937 random(4711);
  for (int round = 0; round < 200; ++round) {
    const std::u16string text = randomText(random);
    SCOPED_TRACE(stringOf(text).utf8());
    const auto font = UIFont::systemFont(9 + static_cast<double>(random() % 17) / 2);
    const auto view = textView(text, font, 22, 100 + static_cast<double>(random() % 220));
    const CGFloat height = view->contentSize().height;
    const CGFloat width = view->frame().size.width;
    view->sizeToFit();
    EXPECT_LE(view->frame().size.width, width);
    EXPECT_EQ(view->frame().size.height, height);
    EXPECT_EQ(view->contentSize().height, height);
    EXPECT_EQ(view->contentSize().width, view->frame().size.width);
  }
}

TEST_F(TextInRealFontsTest, ALabelAsLargeAsItWantsShowsAll) {
  std::mt19937 random(17);
  for (int round = 0; round < 100; ++round) {
    std::u16string text = randomText(random);
    std::erase(text, u'\n');
    SCOPED_TRACE(stringOf(text).utf8());
    const auto label = bridge::makeView<UILabel>({});
    label->setFont(UIFont::systemFont(9 + static_cast<double>(random() % 30) / 2));
    label->setText(stringOf(text));
    label->sizeToFit();
    const auto& lines = UILabelState::of(label.get()).lines();
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].text, text);
    label->setAdjustsFontSizeToFitWidth(true);
    label->setFrame({{0, 0}, {40, 20}});
    const LabelLine shrunk = UILabelState::of(label.get()).lines().at(0);
    while (text.ends_with(u' ')) text.pop_back();
    EXPECT_LE(textEngine().width(shrunk.face, text), 40.01);
    EXPECT_TRUE(shrunk.text.starts_with(text));
  }
}

}  // namespace
}  // namespace desktop::uikit
