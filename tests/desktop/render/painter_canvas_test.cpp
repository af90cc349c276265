// SPDX-License-Identifier: MIT
#include "desktop/render/painter_canvas.h"

#include <gtest/gtest.h>

namespace desktop::render {
namespace {

using uikit::colors::black;
using uikit::colors::white;

// A canvas of 8 x 8 points, a pixel a point, that begins white.
class PainterCanvasTest : public testing::Test {
 protected:
  PainterCanvasTest() : image(8, 8, QImage::Format_ARGB32_Premultiplied) {
    image.fill(Qt::white);
    canvas = std::make_unique<PainterCanvas>(image, 1, all, shadows);
  }

  // How dark a pixel became, from 0 to 255.
  int darkness(int x, int y) {
    canvas.reset();
    return 255 - qRed(image.pixel(x, y));
  }

  static constexpr CGRect all{{0, 0}, {8, 8}};
  QImage image;
  ShadowCache shadows;
  std::unique_ptr<PainterCanvas> canvas;
};

TEST_F(PainterCanvasTest, PaintsOnlyInsideItsClip) {
  canvas->save();
  canvas->clip({{0, 0}, {4, 8}}, 0);
  canvas->fill(all, black, 0);
  canvas->restore();
  EXPECT_TRUE(canvas->isClippedAway({{8, 0}, {2, 2}}));
  EXPECT_FALSE(canvas->isClippedAway({{4, 0}, {2, 2}}));
  EXPECT_EQ(darkness(3, 3), 255);
  EXPECT_EQ(darkness(4, 3), 0);
}

TEST_F(PainterCanvasTest, AGroupIsOnePictureHoweverMuchOverlapsInIt) {
  canvas->save();
  canvas->beginGroup(0.5, all);
  canvas->fill(all, black, 0);
  canvas->fill(all, black, 0);
  canvas->restore();
  EXPECT_NEAR(darkness(3, 3), 128, 2);
}

TEST_F(PainterCanvasTest, GroupsStandInGroups) {
  for (int depth = 0; depth < 4; ++depth) {
    canvas->save();
    canvas->transform(uikit::translation({1, 1}));
    canvas->beginGroup(0.5, all);
  }
  canvas->fill({{0, 0}, {1, 1}}, black, 0);
  for (int depth = 0; depth < 4; ++depth) canvas->restore();
  EXPECT_NEAR(darkness(4, 4), 16, 2);
  EXPECT_EQ(darkness(3, 3), 0);
}

TEST_F(PainterCanvasTest, WhatWasNotRestoredIsPaintedAtTheEnd) {
  canvas->save();
  canvas->beginGroup(1, all);
  canvas->fill(all, black, 0);
  EXPECT_EQ(darkness(3, 3), 255);
}

TEST_F(PainterCanvasTest, AShadowIsDarkestBelowItsShape) {
  canvas->shadow(uikit::Path::rect({{3, 3}, {2, 2}}), black, {0, 0}, 1);
  canvas.reset();
  EXPECT_GT(255 - qRed(image.pixel(3, 3)), 255 - qRed(image.pixel(1, 1)));
  EXPECT_GT(255 - qRed(image.pixel(1, 3)), 0);
}

TEST_F(PainterCanvasTest, AGradientRunsFromTopToBottom) {
  const uikit::Color stops[] = {white, black};
  canvas->gradient(all, stops, {0.5, 0}, {0.5, 1}, 0);
  canvas.reset();
  EXPECT_LT(255 - qRed(image.pixel(4, 0)), 32);
  EXPECT_GT(255 - qRed(image.pixel(4, 7)), 223);
}

}  // namespace
}  // namespace desktop::render
