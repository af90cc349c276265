// SPDX-License-Identifier: MIT
#include "desktop/uikit/text/text_layout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "tests/desktop/uikit/slow_text_engine.h"

namespace desktop::uikit {
namespace {

using testing::ElementsAre;

// A line is 10 points high, and a letter 6 points wide.
constexpr FontFace face{.family = FontFamily::courier, .size = 10};

SharedText shared(std::u16string text, const ParagraphStyle& style = {}) {
  return std::make_shared<AttributedText>(AttributedText::plain(std::move(text), face, style));
}

std::vector<std::u16string> textsOf(const TextLayout& layout) {
  std::vector<std::u16string> texts;
  for (const PlacedLine& line : layout.lines(0, 1e9))
    texts.push_back(layout.text().text.substr(line.start, line.length));
  return texts;
}

std::vector<CGPoint> originsOf(const TextLayout& layout) {
  std::vector<CGPoint> origins;
  for (const PlacedLine& line : layout.lines(0, 1e9)) origins.push_back(line.frame.origin);
  return origins;
}

TEST(TextLayout, BreaksParagraphsIntoLines) {
  const TextLayout layout(shared(u"one two three\nfour"), 48);
  EXPECT_THAT(textsOf(layout), ElementsAre(u"one two ", u"three", u"four"));
  EXPECT_EQ(layout.size(), (CGSize{42, 30}));
  EXPECT_EQ(layout.lineCount(), 3u);
}

TEST(TextLayout, SpacingStandsBetweenParagraphsOnly) {
  const TextLayout layout(shared(u"a\nb\nc", {.spacing = 3, .spacingBefore = 2}), 100);
  EXPECT_THAT(originsOf(layout), ElementsAre(CGPoint{0, 0}, CGPoint{0, 15}, CGPoint{0, 30}));
  EXPECT_EQ(layout.size().height, 40);
}

TEST(TextLayout, LineSpacingStandsBetweenLines) {
  const TextLayout layout(shared(u"aaa bbb\nc", {.lineSpacing = 2}), 24);
  EXPECT_THAT(originsOf(layout), ElementsAre(CGPoint{0, 0}, CGPoint{0, 12}, CGPoint{0, 24}));
  EXPECT_EQ(layout.size().height, 34);
}

TEST(TextLayout, WrappedLinesHangBehindTheirIndent) {
  const ParagraphStyle style{.firstLineHeadIndent = 6, .headIndent = 12};
  const TextLayout layout(shared(u"aaa bbb ccc\x2028"
                                 u"d\ne",
                                 style),
                          48);
  EXPECT_THAT(textsOf(layout), ElementsAre(u"aaa bbb ", u"ccc", u"d", u"e"));
  EXPECT_THAT(originsOf(layout),
              ElementsAre(CGPoint{6, 0}, CGPoint{12, 10}, CGPoint{12, 20}, CGPoint{6, 30}));
  EXPECT_EQ(layout.size().width, 48);
}

TEST(TextLayout, IndentsBeyondTheColumnLeaveALetterALine) {
  for (const double indent : {1000.0, 1e300}) {
    const TextLayout layout(shared(u"abc", {.headIndent = indent}), 10);
    EXPECT_EQ(layout.lineCount(), 3u);
  }
  const TextLayout negative(shared(u"abc def", {.firstLineHeadIndent = -5, .headIndent = -5}), 24);
  EXPECT_THAT(originsOf(negative), ElementsAre(CGPoint{0, 0}, CGPoint{0, 10}));
}

TEST(TextLayout, AlignsLinesInTheColumn) {
  const auto x = [](TextAlignment alignment, std::u16string text) {
    return originsOf(TextLayout(shared(std::move(text), {.alignment = alignment}), 100))[0].x;
  };
  EXPECT_EQ(x(TextAlignment::left, u"abcde"), 0);
  EXPECT_EQ(x(TextAlignment::center, u"abcde"), 35);
  EXPECT_EQ(x(TextAlignment::right, u"abcde"), 70);
  EXPECT_EQ(x(TextAlignment::natural, u"abcde"), 0);
  EXPECT_EQ(x(TextAlignment::natural, u"1. \x05D0\x05D1"), 70);
  EXPECT_EQ(x(TextAlignment::left, u"\x05D0\x05D1"), 0);
}

TEST(TextLayout, FindsPlacesInTheText) {
  const TextLayout layout(shared(u"one two three\nfour"), 48);
  EXPECT_EQ(layout.indexAt({0, 0}), 0u);
  EXPECT_EQ(layout.indexAt({14, 5}), 2u);
  EXPECT_EQ(layout.indexAt({16, 15}), 11u);
  EXPECT_EQ(layout.indexAt({1000, 5}), 7u);  // behind it a caret stands in the next line
  EXPECT_EQ(layout.indexAt({1000, 15}), 13u);
  EXPECT_EQ(layout.indexAt({1000, 1000}), 18u);
  EXPECT_EQ(layout.indexAt({-5, -1000}), 0u);
  EXPECT_EQ(layout.caretAt(2), (CGRect{{12, 0}, {0, 10}}));
  EXPECT_EQ(layout.caretAt(8), (CGRect{{0, 10}, {0, 10}}));
  EXPECT_EQ(layout.caretAt(13), (CGRect{{30, 10}, {0, 10}}));
  EXPECT_EQ(layout.caretAt(14), (CGRect{{0, 20}, {0, 10}}));
  EXPECT_EQ(layout.caretAt(1000), (CGRect{{24, 20}, {0, 10}}));
}

TEST(TextLayout, PlacesNeverLieWithinAPair) {
  const TextLayout layout(shared(u"a\U0001F4F7z"), 100);
  for (double x = 0; x < 40; x += 0.5) EXPECT_NE(layout.indexAt({x, 0}), 2u) << x;
}

TEST(TextLayout, ASelectionReachesToTheColumnsEndWhereItGoesOn) {
  const TextLayout layout(shared(u"one two three\n\nfour", {.spacing = 4}), 48);
  EXPECT_THAT(layout.selection({4, 13}, 0, 1000),
              ElementsAre(CGRect{{24, 0}, {24, 10}}, CGRect{{0, 10}, {48, 14}},
                          CGRect{{0, 24}, {48, 14}}, CGRect{{0, 38}, {12, 10}}));
  EXPECT_THAT(layout.selection({4, 13}, 0, 5), ElementsAre(CGRect{{24, 0}, {24, 10}}));
  EXPECT_THAT(layout.selection({4, 0}, 0, 1000), ElementsAre());
}

TEST(TextLayout, OnlyLinesInSightAreGiven) {
  std::u16string text;
  for (int line = 0; line < 1000; ++line) text += u"line\n";
  const TextLayout layout(shared(text), 100);
  const auto lines = layout.lines(5005, 5025);
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines[0].start, 2500u);
  EXPECT_EQ(lines[0].frame.origin.y, 5000);
  EXPECT_TRUE(layout.lines(-100, 0).empty());
  EXPECT_TRUE(layout.lines(20'000, 30'000).empty());
}

TEST(TextLayout, EveryFontAndWidthIsTaken) {
  for (const double size : {0.0, -1.0, static_cast<double>(NAN), 1e300, 1e-300})
    for (const double width : {0.0, -10.0, static_cast<double>(NAN), 1.0, 1e300}) {
      const FontFace odd{.size = size};
      TextLayout layout(
          std::make_shared<AttributedText>(AttributedText::plain(u"some text\nmore", odd)), width);
      EXPECT_GE(layout.size().height, 0) << size << " " << width;
      layout.refine(0, 100);
      EXPECT_LE(layout.indexAt({5, 5}), 14u);
      layout.caretAt(20);
      EXPECT_LE(layout.lines(0, 100).size(), 14u);
    }
}

class EstimatedLayoutTest : public testing::Test {
 protected:
  EstimatedLayoutTest() {
    auto engine = std::make_unique<SlowTextEngine>();
    slow = engine.get();
    setTextEngine(std::move(engine));
  }
  ~EstimatedLayoutTest() override { setTextEngine(nullptr); }

  // Paragraphs of 60 letters, in which 20 fit into a line of 100 points. Its letters are 5 points
  // wide, as those of the sample that estimates are made from.
  static std::u16string paragraphs(std::size_t count) {
    std::u16string text;
    for (std::size_t index = 0; index < count; ++index) text += std::u16string(60, u'x') + u'\n';
    return text;
  }

  SlowTextEngine* slow = nullptr;
};

TEST_F(EstimatedLayoutTest, ShortTextsAreExactAtOnce) {
  const TextLayout layout(shared(paragraphs(1000)), 100);
  EXPECT_TRUE(layout.isExact());
  EXPECT_EQ(layout.lineCount(), 3001u);
}

TEST_F(EstimatedLayoutTest, LongTextsAreLaidOutWhereTheyAreSeen) {
  const std::u16string text = paragraphs(20'000);
  TextLayout layout(shared(text), 97);  // 19 letters a line: 4 lines
  EXPECT_FALSE(layout.isExact());
  EXPECT_LT(slow->brokenUnits, text.size() / 4);
  EXPECT_NEAR(static_cast<double>(layout.lineCount()), 80'001, 100);
  const std::size_t before = slow->brokenUnits;
  const double end = layout.size().height;
  layout.refine(end - 600, end);
  EXPECT_LT(slow->brokenUnits - before, 5000u);
  EXPECT_FALSE(layout.lines(end - 600, end).empty());
}

TEST_F(EstimatedLayoutTest, WhatIsInSightStaysWhileTheRestIsRefined) {
  // Indents make the estimate of a paragraph's first line wrong.
  const ParagraphStyle style{.firstLineHeadIndent = 95, .headIndent = 0};
  TextLayout layout(shared(paragraphs(20'000), style), 100);
  double top = layout.size().height / 2;
  layout.refine(top, top + 500);
  double shifts = 0;
  for (int step = 0; step < 20; ++step) {
    const PlacedLine seen = layout.lines(top, top + 500)[3];
    const double place = seen.frame.origin.y - top;
    top -= 200;
    const double shift = layout.refine(top, top + 500);
    top += shift;
    shifts += shift;
    EXPECT_DOUBLE_EQ(layout.caretAt(seen.start).origin.y - top, place + 200);
  }
  EXPECT_GT(shifts, 0);
}

TEST_F(EstimatedLayoutTest, RefiningAllMakesItExact) {
  const ParagraphStyle style{.firstLineHeadIndent = 95, .headIndent = 0};
  const SharedText text = shared(paragraphs(5000), style);
  TextLayout layout(text, 100);
  ASSERT_FALSE(layout.isExact());
  layout.refine(0, 1e9);
  EXPECT_TRUE(layout.isExact());
  EXPECT_EQ(layout.lineCount(), 5000u * 4 + 1);
  EXPECT_EQ(layout.size(), (CGSize{100, 200'010}));
  EXPECT_EQ(layout.refine(0, 1e9), 0);
}

}  // namespace
}  // namespace desktop::uikit
