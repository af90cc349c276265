// SPDX-License-Identifier: MIT
#include "desktop/uikit/font_metrics.h"

#include <gtest/gtest.h>

#include <string>

namespace desktop::uikit {
namespace {

double widthOf(std::string_view text) {
  return measureText(systemFontMetrics(), 1, text).width;
}

TEST(FontMetrics, AreTheFontsOwn) {
  const FontMetrics& font = systemFontMetrics();
  EXPECT_NEAR(scaled(font, font.lineHeight(), 1), 1.2102, 0.0001);
  EXPECT_NEAR(scaled(font, font.ascender, 1), 0.9688, 0.0001);
  EXPECT_NEAR(scaled(font, font.descender, 1), -0.2415, 0.0001);
  EXPECT_NEAR(widthOf("0000x0000, mgj"), 7.82, 0.01);
}

TEST(FontMetrics, LettersHaveWidthsOfTheirOwn) {
  EXPECT_DOUBLE_EQ(widthOf(" "), 792.0 / 2816);
  EXPECT_DOUBLE_EQ(widthOf("W"), 2672.0 / 2816);
  EXPECT_DOUBLE_EQ(widthOf("i"), 668.0 / 2816);
  EXPECT_DOUBLE_EQ(widthOf("~"), 1856.0 / 2816);
}

TEST(FontMetrics, AnEmptyTextIsALineHigh) {
  const TextSize size = measureText(systemFontMetrics(), 10, "");
  EXPECT_EQ(size.width, 0);
  EXPECT_NEAR(size.height, 12.102, 0.001);
}

TEST(FontMetrics, LinesStandBelowEachOther) {
  const TextSize one = measureText(systemFontMetrics(), 10, "longest");
  const TextSize three = measureText(systemFontMetrics(), 10, "a\nlongest\n");
  EXPECT_DOUBLE_EQ(three.width, one.width);
  EXPECT_DOUBLE_EQ(three.height, 3 * one.height);
}

TEST(FontMetrics, OtherCharactersCountOnce) {
  EXPECT_DOUBLE_EQ(widthOf("\xC3\xA9"), widthOf("0"));
  EXPECT_DOUBLE_EQ(widthOf("\xE5\x86\x99"), 1);
  EXPECT_DOUBLE_EQ(widthOf("\xF0\x9F\x93\xB7"), 1);
  EXPECT_DOUBLE_EQ(widthOf("\t"), widthOf("0"));
}

TEST(FontMetrics, BytesThatAreNoTextHaveAWidthToo) {
  EXPECT_GT(widthOf("\xFF\xFE\x80"), 0);
  EXPECT_GT(widthOf(std::string(100'000, '\xC3')), 0);
}

}  // namespace
}  // namespace desktop::uikit
