// SPDX-License-Identifier: MIT
#include "desktop/uikit/views/label_lines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include "tests/desktop/uikit/recording_canvas.h"
#include "tests/desktop/uikit/slow_text_engine.h"

namespace desktop::uikit {
namespace {

using testing::ElementsAre;

// A line is 10 points high, and a letter 6 points wide.
constexpr FontFace courierOf10{.family = FontFamily::courier, .size = 10};

SharedText plain(std::u16string text, const ParagraphStyle& style = {}) {
  return std::make_shared<AttributedText>(
      AttributedText::plain(std::move(text), courierOf10, style));
}

std::vector<std::u16string> texts(const std::vector<LabelLine>& lines) {
  std::vector<std::u16string> found;
  for (const LabelLine& line : lines) found.push_back(line.text);
  return found;
}

TEST(LabelLines, NothingIsShownOfNoTextOrInNoRoom) {
  EXPECT_TRUE(labelLines(plain(u""), {}, {100, 20}).empty());
  EXPECT_TRUE(labelLines(plain(u"text"), {}, {0, 20}).empty());
  EXPECT_TRUE(labelLines(plain(u"text"), {}, {100, 0}).empty());
}

TEST(LabelLines, TheLastLineThatHasRoomIsCut) {
  const SharedText text = plain(u"one two three four");
  EXPECT_THAT(texts(labelLines(text, {}, {48, 20})), ElementsAre(u"one two\u2026"));
  EXPECT_THAT(texts(labelLines(text, {.numberOfLines = 2}, {48, 20})),
              ElementsAre(u"one two ", u"three f\u2026"));
  EXPECT_THAT(texts(labelLines(text, {.numberOfLines = 0}, {48, 40})),
              ElementsAre(u"one two ", u"three ", u"four"));
  EXPECT_THAT(texts(labelLines(text, {.numberOfLines = 0}, {48, 10})),
              ElementsAre(u"one two\u2026"));
}

TEST(LabelLines, LinesStandInTheMiddleOfTheHeight) {
  const auto lines = labelLines(plain(u"one two"), {.numberOfLines = 0}, {24, 60});
  ASSERT_EQ(lines.size(), 2u);
  const double ascender = measuresOf(courierOf10).ascender;
  EXPECT_EQ(lines[0].baseline, (CGPoint{0, 20 + ascender}));
  EXPECT_EQ(lines[1].baseline, (CGPoint{0, 30 + ascender}));
}

TEST(LabelLines, ALineIsAlignedInTheWidth) {
  const auto x = [](TextAlignment alignment) {
    return labelLines(plain(u"abcd", {.alignment = alignment}), {}, {60, 20}).at(0).baseline.x;
  };
  EXPECT_EQ(x(TextAlignment::left), 0);
  EXPECT_EQ(x(TextAlignment::center), 18);
  EXPECT_EQ(x(TextAlignment::right), 36);
}

TEST(LabelLines, AHighlightIsOverAllColors) {
  AttributedText colored = AttributedText::plain(u"text", courierOf10);
  const auto color = [&](const LabelStyle& style) {
    return labelLines(std::make_shared<AttributedText>(colored), style, {60, 20}).at(0).color;
  };
  EXPECT_EQ(color({}), colors::black);
  EXPECT_EQ(color({.color = colors::tint}), colors::tint);
  colored.runs[0].color = colors::white;
  EXPECT_EQ(color({.color = colors::tint}), colors::white);
  EXPECT_EQ(color({.color = colors::tint, .highlight = colors::black}), colors::black);
}

TEST(LabelLines, ASizeIsThatOfTheLinesThatMayBeShown) {
  const SharedText text = plain(u"one two three");
  EXPECT_EQ(labelSize(text, {}, courierOf10, {48, 0}), (CGSize{78, 10}));
  EXPECT_EQ(labelSize(text, {.numberOfLines = 0}, courierOf10, {48, 0}), (CGSize{42, 20}));
  EXPECT_EQ(labelSize(text, {.numberOfLines = 2}, courierOf10, {30, 0}).height, 20);
}

TEST(LabelLines, PaintsWhereTheBoundsBegin) {
  RecordingCanvas canvas;
  drawLabelLines(labelLines(plain(u"one two"), {.numberOfLines = 0}, {24, 60}), {{0, 0}, {24, 60}},
                 canvas);
  EXPECT_THAT(canvas.texts, ElementsAre(u"one ", u"two"));
}

TEST(LabelLines, OfALongTextAreThoseThatAreSeen) {
  auto engine = std::make_unique<SlowTextEngine>();
  const SlowTextEngine& slow = *engine;
  setTextEngine(std::move(engine));
  constexpr std::size_t letters = 1'000'000;
  const SharedText text = plain(std::u16string(letters, u'x'));
  const LabelStyle style{.numberOfLines = 0};
  const CGSize size = labelSize(text, style, text->runs[0].face, {100, 0});
  const auto top = labelLines(text, style, size, 0, 100);
  const auto later = labelLines(text, style, size, 50'000, 50'100);
  EXPECT_GT(size.height, 100'000);
  EXPECT_LT(top.size(), 100U);
  ASSERT_FALSE(top.empty());
  ASSERT_FALSE(later.empty());
  EXPECT_LT(top[0].baseline.y, 100);
  EXPECT_NEAR(later[0].baseline.y, 50'000, 100);
  EXPECT_LT(slow.brokenUnits, letters / 4) << "in all three of them";
  setTextEngine(nullptr);
}

}  // namespace
}  // namespace desktop::uikit
