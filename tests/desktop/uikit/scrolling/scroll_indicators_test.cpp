// SPDX-License-Identifier: MIT
#include "desktop/uikit/scrolling/scroll_indicators.h"

#include <gtest/gtest.h>

#include "desktop/uikit/base/geometry.h"
#include "tests/desktop/uikit/recording_canvas.h"

namespace desktop::uikit {
namespace {

// Content three times as high as a view of 106 points, whose bar has a track of 100.
constexpr ScrollContent content{.size = {100, 318}};

CGRect verticalBar(CGFloat offset) {
  return ScrollIndicators().bars({{0, offset}, {100, 106}}, content)[0];
}

TEST(ScrollIndicators, ABarIsAsLongAsThePartThatIsSeen) {
  EXPECT_EQ(verticalBar(0), (CGRect{{94.5, 3}, {2.5, 36}}));
  EXPECT_EQ(verticalBar(212).origin.y, 212 + 103 - 36);
  const CGRect half = ScrollIndicators().bars({{0, 0}, {100, 106}}, {.size = {100, 212}})[0];
  EXPECT_EQ(half.size.height, 50);
}

TEST(ScrollIndicators, WhatIsPulledBeyondTheEndPressesItTogether) {
  const ScrollContent half{.size = {100, 212}};
  const CGRect pulled = ScrollIndicators().bars({{0, -10}, {100, 106}}, half)[0];
  EXPECT_EQ(pulled, (CGRect{{94.5, -7}, {2.5, 40}}));
}

TEST(ScrollIndicators, ThereAreNoneForContentThatIsSeenWhole) {
  ScrollContent small;
  small.size = {100, 106};
  const auto bars = ScrollIndicators().bars({{0, 0}, {100, 106}}, small);
  EXPECT_TRUE(isEmpty(bars[0]));
  EXPECT_TRUE(isEmpty(bars[1]));
}

TEST(ScrollIndicators, EachCanBeTurnedOff) {
  ScrollIndicators indicators;
  const CGRect seen = {{0, 0}, {106, 106}};
  ScrollContent large;
  large.size = {300, 300};
  EXPECT_FALSE(isEmpty(indicators.bars(seen, large)[1]));
  indicators.setShowsHorizontal(false);
  EXPECT_TRUE(isEmpty(indicators.bars(seen, large)[1]));
  EXPECT_FALSE(isEmpty(indicators.bars(seen, large)[0]));
  indicators.setShowsVertical(false);
  EXPECT_TRUE(isEmpty(indicators.bars(seen, large)[0]));
}

TEST(ScrollIndicators, FadeAfterTheLastMovement) {
  ScrollIndicators indicators;
  EXPECT_EQ(indicators.alpha(10, false), 0);
  EXPECT_EQ(indicators.alpha(10, true), 1);
  indicators.show(10);
  EXPECT_EQ(indicators.alpha(10.5, false), 1);
  EXPECT_NEAR(indicators.alpha(10.625, false), 0.5, 1e-9);
  EXPECT_EQ(indicators.alpha(10.75, false), 0);
}

TEST(ScrollIndicators, WhatIsNotSeenIsNotPainted) {
  RecordingCanvas canvas;
  const ScrollIndicators::Bars bars = {CGRect{{94, 3}, {2, 36}}, CGRect{}};
  ScrollIndicators::draw(canvas, bars, 0);
  EXPECT_TRUE(canvas.fills.empty());
  ScrollIndicators::draw(canvas, bars, 0.5);
  ASSERT_EQ(canvas.fills.size(), 1u);
  EXPECT_EQ(canvas.fills[0].rect, bars[0]);
}

}  // namespace
}  // namespace desktop::uikit
