// SPDX-License-Identifier: MIT
#include "desktop/render/qt_text_engine.h"

#include <gtest/gtest.h>

#include <QTextLayout>
#include <cmath>
#include <random>
#include <string>

#include "desktop/render/qt_fonts.h"
#include "desktop/render/shaped_line.h"

namespace desktop::render {
namespace {

using uikit::FontFace;
using uikit::FontFamily;
using uikit::FontWeight;
using uikit::ParagraphRoom;
using uikit::TextLine;

constexpr FontFace courier{.family = FontFamily::courier, .size = 12};
constexpr FontFace system13{.size = 13};

class QtTextEngineTest : public testing::Test {
 protected:
  std::vector<std::u16string> linesOf(const FontFace& face, const std::u16string& text,
                                      const ParagraphRoom& room) const {
    std::vector<std::u16string> lines;
    for (const TextLine& line : engine->breakLines(face, text, room))
      lines.push_back(text.substr(line.start, line.length));
    return lines;
  }

  std::unique_ptr<uikit::TextEngine> engine = makeQtTextEngine();
};

TEST_F(QtTextEngineTest, CourierIsThreeFifthsOfItsSizeWide) {
  EXPECT_DOUBLE_EQ(engine->width(courier, u"0123456789"), 72);
  EXPECT_NEAR(engine->width({.family = FontFamily::courier, .size = 18.5}, u"iW"), 22.2, 1e-9);
  EXPECT_NEAR(engine->width(courier, u"\u00E9\u00E8"), 14.4, 0.01);
}

TEST_F(QtTextEngineTest, TheSystemFontHasTheWidthsOfItsDesign) {
  // Inter's advances are 1760 for "0" and 668 for "i" of 2816 units; these two are not kerned.
  EXPECT_NEAR(engine->width({.size = 12}, u"0"), 1760.0 / 2816 * 12, 0.001);
  EXPECT_NEAR(engine->width({.size = 12}, u"i"), 668.0 / 2816 * 12, 0.001);
  EXPECT_NEAR(engine->width({.size = 6}, u"0000x0000, mgj") * 2,
              engine->width({.size = 12}, u"0000x0000, mgj"), 1e-9);
  EXPECT_GT(engine->width({.weight = FontWeight::bold, .size = 12}, u"bold"),
            engine->width({.size = 12}, u"bold"));
}

TEST_F(QtTextEngineTest, BlanksAtTheEndCountInAWidth) {
  for (const FontFace& face : {courier, system13})
    EXPECT_GT(engine->width(face, u"a  "), engine->width(face, u"a") + 0.3 * face.size);
}

TEST_F(QtTextEngineTest, FiftyLettersOfCourierFitBesideAPhonesMargins) {
  const std::u16string text(147, u'x');
  const auto lines = linesOf(courier, text, {.width = 365, .headIndent = 22});
  ASSERT_EQ(lines.size(), 4u);
  EXPECT_EQ(lines[0].size(), 50u);
  EXPECT_EQ(lines[1].size(), 47u);
  EXPECT_EQ(lines[2].size(), 47u);
}

TEST_F(QtTextEngineTest, BlanksHangBehindTheLineTheyEnd) {
  for (const FontFace& face : {courier, FontFace{.size = 12}}) {
    const double width = engine->width(face, u"some words");
    const auto lines = engine->breakLines(face, u"some words   go on", {.width = width});
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0].length, 13u);
    EXPECT_NEAR(lines[0].width, width, 0.01);
    EXPECT_EQ(lines[1].start, 13u);
  }
}

TEST_F(QtTextEngineTest, BlanksAtALinesEndHaveNoWidth) {
  for (const char16_t* const text :
       {u"abc  ", u"\u00E9bc  ", u"\u05E9\u05DC  ", u"\u05E9\u05DC 12  "})
    for (const FontFace& face : {courier, system13}) {
      const std::u16string line = text;
      const double shown =
          engine->width(face, std::u16string_view(line).substr(0, line.size() - 2));
      for (const double width : {500.0, shown + 1})
        EXPECT_NEAR(engine->breakLines(face, line, {.width = width})[0].width, shown, 0.02);
    }
}

// The quick way and Qt's own layout agree on every line.
TEST_F(QtTextEngineTest, CountingLettersBreaksWhereQtBreaks) {
  constexpr double advance = 7.2;
  std::mt19937 random(20261121);
  constexpr std::u16string_view letters = u"abcXYZ019  --//.,:;!?()[]{}'\"=+*&%$#@_~|<>\\";
  for (int round = 0; round < 500; ++round) {
    std::u16string text = u"x";
    for (auto left = random() % 120; left > 0; --left) text += letters[random() % letters.size()];
    const double width = advance * static_cast<double>(3 + random() % 15) + advance / 2;
    SCOPED_TRACE(QString::fromStdU16String(text).toStdString());
    const auto lines = engine->breakLines(courier, text, {.width = width});

    QTextLayout layout(QString::fromStdU16String(text), designFontOf(courier));
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    std::size_t at = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine(), ++at) {
      line.setLineWidth(width / 12 * designSize);
      ASSERT_LT(at, lines.size()) << width;
      ASSERT_EQ(lines[at].start, static_cast<std::size_t>(line.textStart())) << width;
      const bool endsBlank = text[lines[at].start + lines[at].length - 1] == u' ';
      if (!endsBlank) {
        ASSERT_NEAR(lines[at].width, line.naturalTextWidth() * 12 / designSize, 1)
            << lines[at].start << ' ' << width;
      }
    }
    layout.endLayout();
    ASSERT_EQ(lines.size(), at);
  }
}

TEST_F(QtTextEngineTest, LinesCoverTheParagraphWhateverTheRoom) {
  const std::u16string texts[] = {u"",
                                  u" ",
                                  u"plain words",
                                  u"\u05E9\u05DC\u05D5\u05DD \u05E2\u05D5\u05DC\u05DD",
                                  u"mixed \u05E9\u05DC\u05D5\u05DD and back",
                                  std::u16string(u"\t\x01\x1B\0zero", 9),
                                  u"half \xD83D and \xDCF7",
                                  u"\U0001F4F7\U0001F4F7\U0001F4F7",
                                  std::u16string(300, u'w'),
                                  std::u16string(300, u'\x5199')};
  for (const FontFamily family : {FontFamily::system, FontFamily::courier})
    for (const double size : {12.0, 0.01, 2000.0, 0.0, -1.0, static_cast<double>(NAN)})
      for (const double width : {100.0, 0.0, -50.0, 1e7, 1e300})
        for (const std::u16string& text : texts) {
          const FontFace face{.family = family, .size = size};
          const auto lines = engine->breakLines(face, text, {width, 5, 10});
          ASSERT_FALSE(lines.empty());
          std::size_t end = 0;
          for (const TextLine& line : lines) {
            ASSERT_EQ(line.start, end);
            ASSERT_TRUE(line.length > 0 || text.empty());
            ASSERT_TRUE(std::isfinite(line.width));
            end = line.start + line.length;
          }
          ASSERT_EQ(end, text.size()) << size << " " << width;
        }
}

TEST_F(QtTextEngineTest, LongParagraphsAreBrokenToTheirEnd) {
  for (const char16_t letter : {u'w', u'\x5199'}) {
    const std::u16string text(20'000, letter);
    const auto lines = engine->breakLines(system13, text, {.width = 365});
    EXPECT_EQ(lines.back().start + lines.back().length, text.size());
    EXPECT_NEAR(engine->width(system13, text), 20'000 * engine->width(system13, {&letter, 1}), 20);
  }
}

TEST_F(QtTextEngineTest, LinesStayAsTheyAreInTheRoomThatTheyNeed) {
  const std::u16string text =
      u"The quick brown fox (f) jumps over the lazy dog, for 1/250 s at \u0192/2.8 or so";
  for (const double size : {11.0, 13.0, 17.0}) {
    const FontFace face{.size = size};
    const auto lines = engine->breakLines(face, text, {.width = 190});
    double longest = 0;
    for (const TextLine& line : lines) longest = std::max(longest, line.width);
    EXPECT_LE(longest, 190.5);
    EXPECT_EQ(engine->breakLines(face, text, {.width = longest}).size(), lines.size()) << size;
  }
}

TEST_F(QtTextEngineTest, PositionsAndIndicesBelongTogether) {
  const std::u16string text = u"Exposure \u00E9t\u00E9 1/120";
  for (const FontFace& face : {courier, system13})
    for (std::size_t index = 0; index <= text.size(); ++index) {
      const double x = engine->positionOf(face, text, index);
      EXPECT_EQ(engine->indexAt(face, text, x), index) << index;
    }
  EXPECT_NEAR(engine->positionOf(system13, text, text.size()), engine->width(system13, text), 0.01);
  EXPECT_EQ(engine->indexAt(system13, text, -1e300), 0u);
  EXPECT_EQ(engine->indexAt(system13, text, 1e300), text.size());
  EXPECT_EQ(engine->indexAt(courier, u"abc", 1e300), 3u);
  EXPECT_EQ(engine->indexAt(courier, u"", 5), 0u);
}

TEST_F(QtTextEngineTest, ACaretNeverStandsWithinAPair) {
  const std::u16string text = u"a\U0001F4F7z";
  for (double x = 0; x < 60; x += 0.5) EXPECT_NE(engine->indexAt(system13, text, x), 2u) << x;
}

TEST_F(QtTextEngineTest, WhatReachesOverALettersAdvanceIsNotCounted) {
  for (const double size : {13.0, 34.0})
    for (char16_t letter = u'!'; letter <= u'~'; ++letter) {
      const std::u16string text = {u'a', letter};
      const FontFace face{.size = size};
      const double width = engine->width(face, text);
      EXPECT_NEAR(engine->positionOf(face, text, 2), width, 1e-6) << static_cast<char>(letter);
      EXPECT_NEAR(engine->breakLines(face, text, {.width = 1000})[0].width, width, 1e-6)
          << static_cast<char>(letter);
    }
}

TEST_F(QtTextEngineTest, RightToLeftTextBeginsAtItsRight) {
  const std::u16string text = u"\u05E9\u05DC\u05D5\u05DD";
  EXPECT_NEAR(engine->positionOf(system13, text, 0), engine->width(system13, text), 0.01);
  EXPECT_NEAR(engine->positionOf(system13, text, 4), 0, 0.01);
}

TEST_F(QtTextEngineTest, AnOverrideIsSeenAndTurnsNothingAround) {
  EXPECT_GT(engine->width(system13, u"\u202E"), 0);
  EXPECT_LT(engine->positionOf(system13, u"\u202Egpj", 1),
            engine->positionOf(system13, u"\u202Egpj", 2));
}

TEST_F(QtTextEngineTest, OnlyPlainTextOfOneAdvanceIsQuick) {
  EXPECT_TRUE(engine->breaksQuickly(courier, u"Exposure Time = 1/120"));
  EXPECT_TRUE(engine->breaksQuickly(system13, u""));
  EXPECT_FALSE(engine->breaksQuickly(courier, u"\u00E9"));
  EXPECT_FALSE(engine->breaksQuickly(courier, u"\t"));
  EXPECT_FALSE(engine->breaksQuickly(system13, u"text"));
}

TEST(ShapedLine, PaintsWhatIsMeasured) {
  const auto engine = makeQtTextEngine();
  for (const FontFace& face : {courier, system13, FontFace{.size = 20.25}}) {
    const ShapedLine line = shapedLine(face, u"Office 0x1F  ");
    EXPECT_NEAR(line.width, engine->width(face, u"Office 0x1F  "), 0.01);
    ASSERT_FALSE(line.runs.isEmpty());
    EXPECT_DOUBLE_EQ(line.runs[0].rawFont().pixelSize(), face.size);
    EXPECT_NEAR(line.runs[0].positions()[0].y(), 0, 0.001);
    EXPECT_LE(line.runs[0].positions().back().x(), line.width);
    EXPECT_TRUE(shapedLine(face, u"Office 0x1F  ").runs.isSharedWith(line.runs)) << "shaped once";
  }
}

TEST(ShapedLine, NothingIsPaintedOfAFontWithoutSize) {
  for (const double size : {0.0, -12.0, static_cast<double>(NAN), static_cast<double>(INFINITY)})
    EXPECT_TRUE(shapedLine({.size = size}, u"text").runs.isEmpty()) << size;
}

}  // namespace
}  // namespace desktop::render
