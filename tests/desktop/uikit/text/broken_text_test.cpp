// SPDX-License-Identifier: MIT
#include "desktop/uikit/text/broken_text.h"

#include <gtest/gtest.h>

#include "tests/desktop/uikit/slow_text_engine.h"

namespace desktop::uikit {
namespace {

// A line is 10 points high, and a letter 6 points wide.
BrokenText brokenText(std::u16string text, double width, const ParagraphStyle& style = {}) {
  const FontFace face{.family = FontFamily::courier, .size = 10};
  return {std::make_shared<AttributedText>(AttributedText::plain(std::move(text), face, style)),
          width};
}

TEST(BrokenText, APieceIsAParagraph) {
  const BrokenText text = brokenText(u"one two three\nfour", 48);
  ASSERT_EQ(text.pieces(), 2u);
  EXPECT_EQ(text.piece(1).start, 14u);
  EXPECT_EQ(text.linesOf(0).size(), 2u);
  EXPECT_EQ(text.linesOf(1).size(), 1u);
  EXPECT_EQ(text.lineCount(), 3u);
  EXPECT_EQ(text.size(), (CGSize{42, 30}));
}

TEST(BrokenText, PiecesAreFoundByHeightAndByUnit) {
  const BrokenText text = brokenText(u"one two three\nfour", 48);
  EXPECT_EQ(text.pieceAtHeight(-5), 0u);
  EXPECT_EQ(text.pieceAtHeight(19), 0u);
  EXPECT_EQ(text.pieceAtHeight(21), 1u);
  EXPECT_EQ(text.pieceAtHeight(1000), 1u);
  EXPECT_EQ(text.pieceOfUnit(13), 0u);
  EXPECT_EQ(text.pieceOfUnit(14), 1u);
  EXPECT_EQ(text.pieceOfUnit(1000), 1u);
}

TEST(BrokenText, SpacingStandsAroundAPiecesLines) {
  const BrokenText text =
      brokenText(u"a\nb\nc", 100, {.spacing = 3, .spacingBefore = 2, .lineSpacing = 1});
  EXPECT_EQ(text.lineAdvance(0), 11);
  EXPECT_EQ(text.firstLineTop(0), 0);
  EXPECT_EQ(text.bottom(0), 14);
  EXPECT_EQ(text.top(1), 14);
  EXPECT_EQ(text.firstLineTop(1), 16);
  EXPECT_EQ(text.bottom(2), text.size().height);
}

TEST(BrokenText, LinesBeginBehindTheirIndents) {
  const BrokenText text =
      brokenText(u"aaa bbb ccc\nd", 48, {.firstLineHeadIndent = 6, .headIndent = 12});
  EXPECT_EQ(text.x(0, 0), 6);
  EXPECT_EQ(text.x(0, 1), 12);
  EXPECT_EQ(text.x(1, 0), 6);
}

TEST(BrokenText, WithoutWidthThereIsNoPiece) {
  EXPECT_EQ(brokenText(u"text", 0).pieces(), 0u);
  EXPECT_EQ(brokenText(u"text", -1).lineCount(), 0u);
}

TEST(BrokenText, LongTextsAreEstimatedUntilTheyAreRefined) {
  auto engine = std::make_unique<SlowTextEngine>();
  const SlowTextEngine& slow = *engine;
  setTextEngine(std::move(engine));
  std::u16string text;
  for (int paragraph = 0; paragraph < 5000; ++paragraph) text += std::u16string(60, u'x') + u'\n';
  BrokenText broken = brokenText(text, 100, {.firstLineHeadIndent = 95});
  EXPECT_FALSE(broken.isExact());
  EXPECT_LT(slow.brokenUnits, text.size() / 2);
  const double estimated = broken.size().height;
  EXPECT_EQ(broken.refine(0, 1e9), 0);
  EXPECT_TRUE(broken.isExact());
  EXPECT_EQ(broken.lineCount(), 5000u * 4 + 1);
  EXPECT_GT(broken.size().height, estimated);
  setTextEngine(nullptr);
}

}  // namespace
}  // namespace desktop::uikit
