// SPDX-License-Identifier: MIT
#include "desktop/render/painter_text.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <string>

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

}  // namespace
}  // namespace desktop::render
