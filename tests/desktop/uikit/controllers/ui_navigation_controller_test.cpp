// SPDX-License-Identifier: MIT
#include "desktop/uikit/controllers/ui_navigation_controller.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/uikit/application/application.h"
#include "desktop/uikit/bars/ui_navigation_bar.h"
#include "desktop/uikit/base/platform_log.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/scrolling/ui_scroll_view.h"
#include "tests/desktop/uikit/controller_probes.h"

namespace desktop::uikit {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using How = UIViewController::Animated;
constexpr How animated = UIViewController::animated;
constexpr How atOnce = UIViewController::immediately;

class UINavigationControllerTest : public ControllerTest {
 protected:
  using Stack = Owned<UINavigationController>;

  // A stack of one screen, shown in the window.
  static Stack showStack(const Owned<UIViewController>& root) {
    auto stack = UINavigationController::withRoot(root);
    showRoot(Owned<UIViewController>::retain(stack.get()));
    return stack;
  }
  static UIViewController top(const Stack& stack) {
    return UINavigationControllerState::of(stack.get()).top();
  }
  static std::size_t depth(const Stack& stack) {
    return UINavigationControllerState::of(stack.get()).stack().size();
  }
};

TEST_F(UINavigationControllerTest, PresentingAStackTellsItsTopToo) {
  const auto a = showRoot(ProbeController::make("A"));
  const auto stack = UINavigationController::withRoot(ProbeController::make("B"));
  a->present(stack, animated, {});
  EXPECT_THAT(takeCalls(), ElementsAre("A willDisappear", "B didLoad", "B willAppear"));
  wait(0.5);
  EXPECT_THAT(takeCalls(), ElementsAre("B didAppear", "A didDisappear"));
}

TEST_F(UINavigationControllerTest, PushingTellsBothInThePlatformsOrder) {
  const auto a = ProbeController::make("A");
  const auto stack = showStack(a);
  const auto b = ProbeController::make("B");
  stack->push(b, animated);
  EXPECT_THAT(takeCalls(), ElementsAre("B didLoad", "A willDisappear", "B willAppear"));
  EXPECT_EQ(top(stack), b.get());
  wait(0.4);
  EXPECT_THAT(takeCalls(), ElementsAre("A didDisappear", "B didAppear"));
  EXPECT_FALSE(UIViewState::of(a->view().get()).window());
}

TEST_F(UINavigationControllerTest, TheBackButtonPops) {
  const auto stack = showStack(ProbeController::make("A"));
  const auto b = ProbeController::make("B");
  stack->push(b, animated);
  wait(0.4);
  takeCalls();
  ProbeController::of(b.get()).onDisappear = [&] {
    EXPECT_EQ(b->navigationController(), stack.get());
  };
  tap("A");
  EXPECT_THAT(takeCalls(), ElementsAre("B willDisappear", "A willAppear"));
  wait(0.4);
  EXPECT_THAT(takeCalls(), ElementsAre("B didDisappear", "A didAppear"));
  EXPECT_EQ(depth(stack), 1u);
  EXPECT_FALSE(b->navigationController());
}

TEST_F(UINavigationControllerTest, ScreensSlideOverEachOther) {
  const auto a = ProbeController::make("A");
  const auto stack = showStack(a);
  const auto b = ProbeController::make("B");
  stack->push(b, animated);
  scheduler().advanceTo(scheduler().now() + 0.175);
  EXPECT_THAT(onScreen(b->view()), ElementsAre(187.5, 0, 375, 667));
  EXPECT_THAT(onScreen(a->view()), ElementsAre(-56.25, 0, 375, 667));
  wait(0.3);
  EXPECT_THAT(onScreen(b->view()), ElementsAre(0, 0, 375, 667));
  EXPECT_THAT(onScreen(stack->navigationBar()), ElementsAre(0, 20, 375, 44));
}

TEST_F(UINavigationControllerTest, AControllerIsPushedOnce) {
  const auto stack = showStack(ProbeController::make("A"));
  const auto b = ProbeController::make("B");
  stack->push(b, atOnce);
  takeCalls();
  stack->push(b, animated);
  stack->push({}, animated);
  EXPECT_EQ(depth(stack), 2u);
  EXPECT_THAT(takeCalls(), IsEmpty());
  ASSERT_EQ(platformLog().size(), 1u);
  EXPECT_THAT(platformLog()[0], HasSubstr("more than once"));
}

TEST_F(UINavigationControllerTest, AnotherChangeEndsTheOneUnderWay) {
  const auto stack = showStack(ProbeController::make("A"));
  stack->push(ProbeController::make("B"), animated);
  wait(0.1);
  takeCalls();
  stack->push(ProbeController::make("C"), animated);
  EXPECT_THAT(takeCalls(), ElementsAre("A didDisappear", "B didAppear", "C didLoad",
                                       "B willDisappear", "C willAppear"));
  wait(0.4);
  EXPECT_THAT(takeCalls(), ElementsAre("B didDisappear", "C didAppear"));
}

TEST_F(UINavigationControllerTest, PoppingToTheRootSkipsWhatLiesBetween) {
  const auto a = ProbeController::make("A");
  const auto stack = showStack(a);
  const auto b = ProbeController::make("B");
  stack->push(b, atOnce);
  stack->push(ProbeController::make("C"), atOnce);
  takeCalls();
  const auto popped = send<NSArray, "popToRootViewControllerAnimated:">(stack.get(), true);
  EXPECT_EQ(popped.count(), 2u);
  wait(0.4);
  EXPECT_THAT(takeCalls(),
              ElementsAre("C willDisappear", "A willAppear", "C didDisappear", "A didAppear"));
  EXPECT_FALSE(b->navigationController());
  EXPECT_FALSE((send<UIViewController, "popViewControllerAnimated:">(stack.get(), true)));
}

TEST_F(UINavigationControllerTest, TheWholeStackCanBeReplaced) {
  const auto a = ProbeController::make("A");
  const auto stack = showStack(a);
  const auto b = ProbeController::make("B");
  const auto c = ProbeController::make("C");
  send<void, "setViewControllers:animated:">(stack.get(), NSArray::of(b.get(), c.get()), false);
  EXPECT_EQ(top(stack), c.get());
  EXPECT_FALSE(a->navigationController());
  EXPECT_EQ(b->navigationController(), stack.get());
  send<void, "setViewControllers:animated:">(stack.get(), NSArray::of(b.get()), true);
  wait(0.4);
  EXPECT_EQ(top(stack), b.get());
  EXPECT_EQ(UIViewState::of(b->view().get()).window(), window());
}

TEST_F(UINavigationControllerTest, ScrollViewsKeepTheirContentOutOfTheBars) {
  const auto a = ProbeController::make("A");
  const auto list = bridge::makeView<UIScrollView>({{0, 0}, {375, 667}});
  list->setContentSize({375, 2000});
  a->view().addSubview(list);
  const auto stack = showStack(a);
  EXPECT_EQ(UIScrollViewState::of(list.get()).adjustedContentInset(), (EdgeInsets{.top = 64}));
  EXPECT_EQ(list->contentOffset(), (CGPoint{0, -64}));
  send<void, "setToolbarHidden:">(stack.get(), false);
  send<void, "setNavigationBarHidden:">(stack.get(), true);
  application().prepareFrame();
  EXPECT_EQ(UIScrollViewState::of(list.get()).adjustedContentInset(), (EdgeInsets{.bottom = 44}));
}

TEST_F(UINavigationControllerTest, AScrollViewThatComesLaterIsKeptOutToo) {
  const auto a = ProbeController::make("A");
  showStack(a);
  const auto list = bridge::makeView<UIScrollView>({{0, 0}, {375, 667}});
  a->view().addSubview(list);
  application().prepareFrame();
  EXPECT_EQ(UIScrollViewState::of(list.get()).adjustedContentInset(), (EdgeInsets{.top = 64}));
  send<void, "setContentInsetAdjustmentBehavior:">(list.get(), NSInteger{2});
  EXPECT_EQ(UIScrollViewState::of(list.get()).adjustedContentInset(), EdgeInsets{});
}

TEST_F(UINavigationControllerTest, ALargeTitleMakesRoomBelowTheRowOfButtons) {
  const auto a = ProbeController::make("Albums");
  const auto stack = UINavigationController::withRoot(a);
  send<void, "setPrefersLargeTitles:">(stack->navigationBar(), true);
  showRoot(Owned<UIViewController>::retain(stack.get()));
  EXPECT_THAT(onScreen(stack->navigationBar()), ElementsAre(0, 20, 375, 96));
  EXPECT_EQ(UIViewControllerState::of(a.get()).safeArea().top, 116);
  const auto b = ProbeController::make("B");
  send<void, "setLargeTitleDisplayMode:">(b->navigationItem(), NSInteger{2});
  stack->push(b, animated);
  wait(0.4);
  EXPECT_THAT(onScreen(stack->navigationBar()), ElementsAre(0, 20, 375, 44));
  EXPECT_EQ(UIViewControllerState::of(b.get()).safeArea().top, 64);
}

TEST_F(UINavigationControllerTest, TheBarSlidesAwayAndComesBack) {
  const auto stack = showStack(ProbeController::make("A"));
  send<void, "setNavigationBarHidden:animated:">(stack.get(), true, true);
  wait(0.3);
  EXPECT_FALSE(isShown("A"));
  send<void, "setNavigationBarHidden:animated:">(stack.get(), false, true);
  wait(0.3);
  EXPECT_TRUE(isShown("A"));
  EXPECT_THAT(onScreen(stack->navigationBar()), ElementsAre(0, 20, 375, 44));
}

TEST_F(UINavigationControllerTest, TheToolbarShowsTheItemsOfTheTop) {
  const auto a = ProbeController::make("A");
  const auto item = UIBarButtonItem::withTitle(NSString::make("Share it"), UIBarButtonItem::plain,
                                               a.get(), selector<"press:">());
  const auto stack = showStack(a);
  send<void, "setToolbarHidden:">(stack.get(), false);
  send<void, "setToolbarItems:animated:">(a.get(), NSArray::of(item.get()), false);
  tap("Share it");
  EXPECT_THAT(takeCalls(), ElementsAre("A pressed"));
  EXPECT_EQ(ProbeController::of(a.get()).sender, item.get());
}

TEST_F(UINavigationControllerTest, AStackThatWasNeverShownTellsNobody) {
  const auto a = ProbeController::make("A");
  const auto stack = UINavigationController::withRoot(a);
  stack->push(ProbeController::make("B"), animated);
  send<UIViewController, "popViewControllerAnimated:">(stack.get(), true);
  EXPECT_THAT(takeCalls(), IsEmpty());
  EXPECT_EQ(top(stack), a.get());
}

TEST_F(UINavigationControllerTest, ScreensGoWhenTheyArePopped) {
  const auto stack = showStack(ProbeController::make("A"));
  const auto settle = [&] {
    const AutoreleasePool pool;
    stack->push(ProbeController::make("B"), animated);
    wait(0.4);
    tap("A");
    wait(0.4);
  };
  settle();
  const long before = liveBoundObjects();
  settle();
  EXPECT_EQ(liveBoundObjects(), before);
}

}  // namespace
}  // namespace desktop::uikit
