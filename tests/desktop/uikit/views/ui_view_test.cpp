// SPDX-License-Identifier: MIT
#include "desktop/uikit/views/ui_view.h"

#include <gtest/gtest.h>

#include <cmath>

#include "bridge/uikit.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/views/animator.h"
#include "tests/desktop/uikit/application_test.h"

namespace desktop::uikit {
namespace {

class UIViewTest : public ApplicationTest {
 protected:
  static Owned<UIView> view(CGRect frame) { return bridge::makeView<UIView>(frame); }
};

TEST_F(UIViewTest, AFrameIsItsBoundsAroundItsCenter) {
  const auto box = view({{10, 20}, {30, 40}});
  EXPECT_EQ(box->frame(), (CGRect{{10, 20}, {30, 40}}));
  EXPECT_EQ(box->bounds(), (CGRect{{0, 0}, {30, 40}}));
  EXPECT_EQ(UIViewState::of(box.get()).center(), (CGPoint{25, 40}));
}

TEST_F(UIViewTest, AScaledViewsFrameIsTheRectangleAroundIt) {
  const auto box = view({{10, 20}, {30, 40}});
  box->setTransform(scaling(2, 2));
  EXPECT_EQ(box->frame(), (CGRect{{-5, 0}, {60, 80}}));
  EXPECT_EQ(box->bounds(), (CGRect{{0, 0}, {30, 40}}));
}

TEST_F(UIViewTest, AFrameThatIsNotFiniteIsEmpty) {
  const auto box = view({{NAN, 0}, {10, 10}});
  EXPECT_EQ(box->frame(), CGRect{});
  box->setFrame({{0, 0}, {INFINITY, 10}});
  EXPECT_EQ(box->frame(), CGRect{});
}

TEST_F(UIViewTest, FlexibleSizeFollowsTheSuperview) {
  const auto outer = view({{0, 0}, {100, 200}});
  const auto inner = view({{10, 20}, {80, 160}});
  inner->setAutoresizingMask(flexibleWidth | flexibleHeight);
  outer->addSubview(inner);
  outer->setFrame({{0, 0}, {150, 180}});
  EXPECT_EQ(inner->frame(), (CGRect{{10, 20}, {130, 140}}));
}

TEST_F(UIViewTest, AViewCannotContainItself) {
  const auto outer = view({});
  const auto inner = view({});
  outer->addSubview(inner);
  inner->addSubview(outer);
  outer->addSubview(outer);
  EXPECT_EQ(inner->subviews().count(), 0u);
  EXPECT_EQ(outer->subviews().count(), 1u);
}

TEST_F(UIViewTest, ViewsGoWithTheirLastOwner) {
  const long before = liveBoundObjects();
  {
    const AutoreleasePool inner;
    const auto outer = view({});
    for (int count = 0; count < 3; ++count) outer->addSubview(view({}));
    EXPECT_GT(liveBoundObjects(), before);
  }
  EXPECT_EQ(liveBoundObjects(), before);
}

TEST_F(UIViewTest, AnimationsShowWhatIsOnTheWay) {
  const auto box = view({{0, 0}, {10, 10}});
  window().addSubview(box);
  bool finished = false;
  UIView::animate(0.25, Block<void()>([&box] { box->setAlpha(0); }),
                  Block<void(bool)>([&finished](bool whole) { finished = whole; }));
  EXPECT_EQ(UIViewState::of(box.get()).alpha(), 0);
  scheduler().advanceTo(scheduler().now() + 0.125);
  EXPECT_DOUBLE_EQ(UIViewState::of(box.get()).shown().alpha, 0.5);
  application().advance(0.1);
  EXPECT_FALSE(finished);
  application().advance(0.05);
  EXPECT_TRUE(finished);
  EXPECT_EQ(UIViewState::of(box.get()).shown().alpha, 0);
}

TEST_F(UIViewTest, WhatLeavesTheWindowIsNoLongerAnimated) {
  const auto box = view({{0, 0}, {10, 10}});
  window().addSubview(box);
  int completions = 0;
  bool finished = true;
  UIView::animate(1, Block<void()>([&box] { box->setAlpha(0); }),
                  Block<void(bool)>([&](bool whole) {
                    finished = whole;
                    ++completions;
                  }));
  box->removeFromSuperview();
  EXPECT_EQ(completions, 1);
  EXPECT_FALSE(finished);
  EXPECT_TRUE(animator().isIdle());
}

}  // namespace
}  // namespace desktop::uikit
