// SPDX-License-Identifier: MIT
#include "desktop/uikit/controls/shown_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "tests/desktop/uikit/recording_canvas.h"

namespace desktop::uikit {
namespace {

using testing::ElementsAre;

// A line is 10 points high, and a letter 6 points wide.
constexpr FontFace face{.family = FontFamily::courier, .size = 10};
constexpr CGRect inSight{{0, 0}, {130, 200}};

ShownText shown(std::u16string text, CGFloat width = 130) {
  ShownText made;
  made.setFace(face);
  made.setPlain(std::move(text));
  made.arrange(width);
  return made;
}

TEST(ShownText, IsEmptyInTheStandardFontAtFirst) {
  const ShownText text;
  EXPECT_EQ(text.length(), 0u);
  EXPECT_EQ(text.face(), ShownText::standardFace);
  EXPECT_EQ(text.color(), colors::black);
  EXPECT_EQ(text.alignment(), TextAlignment::natural);
}

TEST(ShownText, PlainTextTakesTheLookThatIsThere) {
  ShownText text;
  text.setFace(face);
  text.setColor(colors::white);
  text.setAlignment(TextAlignment::center);
  text.setPlain(u"abc");
  ASSERT_EQ(text.content().runs.size(), 1u);
  EXPECT_EQ(text.content().runs[0].face, face);
  EXPECT_EQ(text.content().runs[0].color, colors::white);
  EXPECT_EQ(text.content().runs[0].style.alignment, TextAlignment::center);
}

TEST(ShownText, AttributedTextBringsItsLook) {
  ShownText text;
  text.setAlignment(TextAlignment::right);
  AttributedText attributed = AttributedText::plain(u"one\ntwo", face);
  attributed.runs.push_back(
      {.start = 4, .face = face, .style = {.alignment = TextAlignment::left}, .color = {}});
  text.setAttributed(attributed);
  EXPECT_EQ(text.face(), face);
  EXPECT_EQ(text.content().runs[0].style.alignment, TextAlignment::right);
  EXPECT_EQ(text.content().runs[1].style.alignment, TextAlignment::left);
  text.setColor(colors::white);
  for (const TextRun& run : text.content().runs) EXPECT_EQ(run.color, colors::white);
}

TEST(ShownText, IsArrangedOnceForAWidth) {
  ShownText text = shown(u"one two", 130);
  EXPECT_FALSE(text.arrange(130));
  EXPECT_TRUE(text.arrange(40));
  EXPECT_EQ(text.layout().lineCount(), 2u);
  text.setPlain(u"other");
  EXPECT_TRUE(text.arrange(40));
  EXPECT_TRUE(text.setInset({}));
  EXPECT_TRUE(text.arrange(40));
}

TEST(ShownText, AnInsetThatIsNotFiniteIsNone) {
  ShownText text;
  EXPECT_FALSE(text.setInset({NAN, 0, 0, 0}));
  EXPECT_FALSE(text.setInset({0, INFINITY, 0, 0}));
  EXPECT_FALSE(text.setInset({8, 0, 8, 0}));
  EXPECT_EQ(text.inset(), (EdgeInsets{8, 0, 8, 0}));
}

TEST(ShownText, FitsAroundItsLongestLine) {
  const ShownText text = shown(u"one\ntwo\nthree");
  EXPECT_EQ(text.sizeIn(130), (CGSize{40, 46}));
  EXPECT_EQ(text.sizeIn(1e7), (CGSize{40, 46}));
  EXPECT_EQ(text.sizeIn(30), (CGSize{28, 56}));
  EXPECT_EQ(text.layout().width(), 120);  // asking for another width does not arrange
}

TEST(ShownText, PlacesAreTheViews) {
  const ShownText text = shown(u"one\ntwo");
  EXPECT_EQ(text.caretAt(4), (CGRect{{5, 18}, {0, 10}}));
  EXPECT_EQ(text.caretAt(100), text.caretAt(7));
  EXPECT_EQ(text.indexAt({5 + 12, 20}), 6u);
  EXPECT_EQ(text.distance({5, 23}, 4), 0);
  EXPECT_EQ(text.distance({8, 32}, 4), 5);
  EXPECT_THAT(text.selection({1, 5}, inSight),
              ElementsAre(CGRect{{11, 8}, {114, 10}}, CGRect{{5, 18}, {12, 10}}));
  EXPECT_THAT(text.selection({1, 5}, {{0, 19}, {130, 10}}), ElementsAre(CGRect{{5, 18}, {12, 10}}));
}

TEST(ShownText, AWordIsThatOfTheUnitBelow) {
  const ShownText text = shown(u"one two");
  const auto wordAt = [&](CGFloat x) { return text.wordAt({5 + x, 12}); };
  EXPECT_EQ(wordAt(1), (NSRange{0, 3}));
  EXPECT_EQ(wordAt(17), (NSRange{0, 3}));  // a caret is nearest behind its last unit
  EXPECT_EQ(wordAt(25), (NSRange{4, 3}));
}

TEST(ShownText, SelectedTextStandsBetweenTwoHandles) {
  const ShownText text = shown(u"one two");
  RecordingCanvas canvas;
  text.drawSelection(canvas, {0, 3}, inSight, colors::black);
  std::vector<CGRect> rects;
  for (const auto& fill : canvas.fills) rects.push_back(fill.rect);
  EXPECT_THAT(rects, ElementsAre(CGRect{{5, 8}, {18, 10}}, CGRect{{4, 8}, {2, 10}},
                                 CGRect{{0, -2}, {10, 10}}, CGRect{{22, 8}, {2, 10}},
                                 CGRect{{18, 18}, {10, 10}}));
}

TEST(ShownText, PaintsTheLinesInSight) {
  const ShownText text = shown(u"one\ntwo\nthree");
  RecordingCanvas canvas;
  text.draw(canvas, {{0, 19}, {130, 5}});
  EXPECT_THAT(canvas.texts, ElementsAre(u"two"));
}

TEST(ShownText, UnitsEndWithTheText) {
  const ShownText text = shown(u"one two");
  EXPECT_EQ(text.units({4, 2}), u"tw");
  EXPECT_EQ(text.units({4, 200}), u"two");
  EXPECT_EQ(text.units({40, 2}), u"");
}

}  // namespace
}  // namespace desktop::uikit
