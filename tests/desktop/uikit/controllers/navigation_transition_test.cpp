// SPDX-License-Identifier: MIT
#include "desktop/uikit/controllers/navigation_transition.h"

#include <gtest/gtest.h>

#include "desktop/uikit/views/animator.h"
#include "tests/desktop/uikit/controller_probes.h"

namespace desktop::uikit {
namespace {

using Direction = NavigationTransition::Direction;

class NavigationTransitionTest : public ControllerTest {
 protected:
  NavigationTransitionTest() {
    content = bridge::makeView<UIView>({{0, 0}, {100, 200}});
    window().addSubview(content);
    content->addSubview(leaving->view());
    leaving->view().setFrame(content->bounds());
  }
  void slide(Direction direction) {
    transition.begin(leaving, coming);
    transition.slide(
        direction, content, bar, [this] { ++arranged; }, [this] { ++ended; });
  }
  static CGFloat leftOf(const Owned<UIViewController>& controller) {
    return UIViewState::of(controller->view().get()).shown().frame().origin.x;
  }

  Owned<UIViewController> leaving = ProbeController::make("A");
  Owned<UIViewController> coming = ProbeController::make("B");
  Owned<UIView> content;
  Owned<UIView> bar = bridge::makeView<UIView>({});
  NavigationTransition transition;
  int arranged = 0;
  int ended = 0;
};

TEST_F(NavigationTransitionTest, HoldsBothScreensUntilItEnds) {
  EXPECT_FALSE(transition.isUnderWay());
  transition.begin(UIViewController(), coming);
  EXPECT_TRUE(transition.isUnderWay());
  const auto screens = transition.end();
  EXPECT_FALSE(screens.leaving);
  EXPECT_EQ(screens.coming.get(), coming.get());
  EXPECT_FALSE(transition.isUnderWay());
  EXPECT_FALSE(transition.end().coming);
}

TEST_F(NavigationTransitionTest, ForwardTheNextScreenComesFromTheRightOverTheLast) {
  slide(Direction::forward);
  EXPECT_EQ(leftOf(coming), 100);
  EXPECT_EQ(leftOf(leaving), 0);
  EXPECT_EQ(UIViewState::of(content.get()).subviews().back().get(), coming->view());
  wait(0.5);
  EXPECT_EQ(leftOf(coming), 0);
  EXPECT_EQ(leftOf(leaving), -30);
}

TEST_F(NavigationTransitionTest, BackwardTheScreenBelowComesOut) {
  slide(Direction::backward);
  EXPECT_EQ(leftOf(coming), -30);
  EXPECT_EQ(UIViewState::of(content.get()).subviews().front().get(), coming->view());
  wait(0.5);
  EXPECT_EQ(leftOf(coming), 0);
  EXPECT_EQ(leftOf(leaving), 100);
}

TEST_F(NavigationTransitionTest, TheBarAppearsMeanwhile) {
  slide(Direction::forward);
  EXPECT_EQ(arranged, 1);
  EXPECT_EQ(UIViewState::of(bar.get()).shown().alpha, 0);
  wait(0.5);
  EXPECT_EQ(UIViewState::of(bar.get()).shown().alpha, 1);
}

TEST_F(NavigationTransitionTest, SaysThatItIsOverOnceUnlessItEndedBefore) {
  slide(Direction::forward);
  EXPECT_EQ(ended, 0);
  wait(0.5);
  EXPECT_EQ(ended, 1);
  slide(Direction::backward);
  transition.end();
  wait(0.5);
  EXPECT_EQ(ended, 1);
}

}  // namespace
}  // namespace desktop::uikit
