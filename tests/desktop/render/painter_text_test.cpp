// SPDX-License-Identifier: MIT
#include "desktop/render/painter_text.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <string>

#include "desktop/render/painted_line.h"

namespace desktop::render {
namespace {

// Each letter takes six pixels.
constexpr uikit::FontFace courier{.family = uikit::FontFamily::courier, .size = 10};
constexpr std::size_t advance = 6;
constexpr std::size_t shownLetters = 10;

QImage whitePicture() {
  QImage image(shownLetters * advance, 16, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::white);
  return image;
}

// The picture of the last letters of a line, however far to the left it begins.
QImage endOf(std::u16string_view line) {
  QImage image = whitePicture();
  QPainter painter(&image);
  const double hidden = static_cast<double>((line.size() - shownLetters) * advance);
  paintText(painter, line, courier, Qt::black, {-hidden, 12});
  return image;
}

TEST(PainterText, PaintsLinesOfEveryLength) {
  constexpr std::u16string_view letters = u"A line, so long ";
  for (const std::size_t length : {10U, 255U, 256U, 257U, 5'000U}) {
    std::u16string line;
    while (line.size() < length) line += letters[line.size() % letters.size()];
    const std::u16string lastLetters = line.substr(length - shownLetters);
    EXPECT_NE(endOf(line), whitePicture()) << length;
    EXPECT_EQ(endOf(line), endOf(lastLetters)) << length;
  }
}

// Where glyphs are painted one by one: a line that is too long to be kept, but for these letters
// all blank.
std::u16string notKept(std::u16string_view letters) {
  return std::u16string(letters) + std::u16string(300, u' ');
}

QImage painted(std::u16string_view line, QColor color, QColor background, double scale,
               QPointF baseline) {
  QImage image(200, 60, QImage::Format_ARGB32_Premultiplied);
  image.fill(background);
  QPainter painter(&image);
  painter.scale(scale, scale);
  paintText(painter, line, {.size = 15}, color, baseline);
  return image;
}

TEST(PainterText, LooksTheSameWhetherItIsKeptOrNot) {
  constexpr std::u16string_view line = u"4032x3024, jpg Éq";
  for (const double scale : {1.0, 2.0, 3.0})
    for (const double x : {0.0, 4.25, 7.5, 9.75}) {
      const QPointF baseline(x / scale, 40 / scale);
      for (const auto& [color, background] :
           {std::pair(Qt::black, Qt::white), std::pair(Qt::white, Qt::black)}) {
        const QImage once = painted(line, color, background, scale, baseline);
        EXPECT_EQ(once, painted(notKept(line), color, background, scale, baseline))
            << scale << " " << x;
        EXPECT_EQ(once, painted(line, color, background, scale, baseline));
      }
    }
}

TEST(PainterText, KeepsLinesOfAnInterface) {
  const LinePaint paint{.face = {.size = 12}, .color = qRgb(255, 255, 255), .scale = 2};
  const auto kept = paintedLine(paint, u"4032x3024, jpg");
  ASSERT_TRUE(kept);
  EXPECT_GT(kept->image.width(), 100);
  EXPECT_LT(kept->image.width(), 300);
  EXPECT_LT(kept->image.height(), 60);
  EXPECT_EQ(paintedLine(paint, u"4032x3024, jpg")->image.cacheKey(), kept->image.cacheKey());
  EXPECT_FALSE(paintedLine(paint, std::u16string(65, u'x')));
  LinePaint huge = paint;
  huge.face.size = 1'000;
  EXPECT_FALSE(paintedLine(huge, u"huge"));
}

TEST(PainterText, TurnedTextIsPaintedToo) {
  QImage image = whitePicture();
  QPainter painter(&image);
  painter.rotate(20);
  paintText(painter, u"turned", courier, Qt::black, {5, 5});
  EXPECT_NE(image, whitePicture());
}

TEST(PainterText, ColorsAndTransparencyAreKeptApart) {
  const QImage red = painted(u"color", Qt::red, Qt::white, 2, {4, 20});
  const QImage blue = painted(u"color", Qt::blue, Qt::white, 2, {4, 20});
  const QImage pale = painted(u"color", QColor(255, 0, 0, 60), Qt::white, 2, {4, 20});
  EXPECT_NE(red, blue);
  EXPECT_NE(red, pale);
}

}  // namespace
}  // namespace desktop::render
