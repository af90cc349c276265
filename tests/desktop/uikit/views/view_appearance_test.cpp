// SPDX-License-Identifier: MIT
#include "desktop/uikit/views/view_appearance.h"

#include <gtest/gtest.h>

#include <cmath>

namespace desktop::uikit {
namespace {

constexpr CGAffineTransform quarterTurn{0, 1, -1, 0, 0, 0};

const ViewAppearance placedView = ViewAppearance{}.withFrame({{10, 20}, {40, 60}});

TEST(ViewAppearance, AFrameSaysWhereTheMiddleIs) {
  EXPECT_EQ(placedView.center, (CGPoint{30, 50}));
  EXPECT_EQ(placedView.bounds, (CGRect{{0, 0}, {40, 60}}));
  EXPECT_EQ(placedView.frame(), (CGRect{{10, 20}, {40, 60}}));
}

TEST(ViewAppearance, ItsBoundsSayWhatOfItIsShown) {
  const ViewAppearance scrolled = placedView.withBounds({{0, 100}, {20, 60}});
  EXPECT_EQ(scrolled.frame(), (CGRect{{20, 20}, {20, 60}}));
  EXPECT_EQ(apply(scrolled.toSuperview(), CGPoint{0, 100}), (CGPoint{20, 20}));
  EXPECT_EQ(scrolled.withFrame({{0, 0}, {5, 5}}).bounds, (CGRect{{0, 100}, {5, 5}}));
}

TEST(ViewAppearance, AFrameIsAroundWhatIsTransformed) {
  const ViewAppearance turned = placedView.withTransform(quarterTurn);
  EXPECT_EQ(turned.frame(), (CGRect{{0, 30}, {60, 40}}));
  EXPECT_EQ(apply(turned.toSuperview(), CGPoint{0, 0}), (CGPoint{60, 30}));
}

TEST(ViewAppearance, WhatIsNotFiniteIsNothing) {
  EXPECT_EQ(placedView.withFrame({{NAN, 0}, {1, 1}}).frame(), CGRect{});
  EXPECT_EQ(placedView.withBounds({{0, 0}, {INFINITY, 1}}).bounds, CGRect{});
  EXPECT_EQ(placedView.withCenter({NAN, 1}).center, placedView.center);
  EXPECT_EQ(placedView.withCenter({1, 2}).center, (CGPoint{1, 2}));
}

TEST(ViewAppearance, AnAlphaEndsAtItsEnds) {
  EXPECT_EQ(placedView.withAlpha(0.5).alpha, 0.5);
  EXPECT_EQ(placedView.withAlpha(7).alpha, 1);
  EXPECT_EQ(placedView.withAlpha(-1).alpha, 0);
  EXPECT_EQ(placedView.withAlpha(NAN).alpha, 0);
}

TEST(ViewAppearance, OneThingChangesAtATime) {
  ViewAppearance expected = placedView;
  expected.background = colors::black;
  EXPECT_EQ(placedView.withBackground(colors::black), expected);
  EXPECT_NE(placedView, expected);
}

}  // namespace
}  // namespace desktop::uikit
