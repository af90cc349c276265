// SPDX-License-Identifier: MIT
#include "desktop/uikit/controllers/ui_tab_bar_controller.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/uikit/application/application.h"
#include "desktop/uikit/bars/ui_tab_bar.h"
#include "desktop/uikit/bars/ui_tab_bar_item.h"
#include "desktop/uikit/controllers/ui_navigation_controller.h"
#include "tests/desktop/uikit/controller_probes.h"

namespace desktop::uikit {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
constexpr auto animated = UIViewController::animated;

class UITabBarControllerTest : public ControllerTest {
 protected:
  UITabBarControllerTest()
      : a(ProbeController::make("A")),
        b(ProbeController::make("B")),
        stack(UINavigationController::withRoot(b)),
        tabs(makeNew<UITabBarController>()) {
    send<void, "setTitle:">(stack.get(), NSString::make("Stack"));
    tabs->setViewControllers(NSArray::of(a.get(), stack.get()));
    showRoot(Owned<UIViewController>::retain(tabs.get()));
  }

  UIView bar() const { return UITabBarControllerState::of(tabs.get()).tabBar(); }
  void tapTab(std::size_t index) const {
    application().prepareFrame();
    tap({375.0 * (static_cast<double>(index) + 0.5) / 2, 640});
  }

  const Owned<UIViewController> a;
  const Owned<UIViewController> b;
  const Owned<UINavigationController> stack;
  const Owned<UITabBarController> tabs;
};

TEST_F(UITabBarControllerTest, ShowsTheFirstScreenAboveTheBar) {
  EXPECT_EQ(tabs->selectedViewController(), a.get());
  EXPECT_THAT(onScreen(bar()), ElementsAre(0, 618, 375, 49));
  EXPECT_EQ(UIViewControllerState::of(a.get()).safeArea(), (EdgeInsets{.bottom = 49}));
  EXPECT_TRUE(isShown("A"));
  EXPECT_TRUE(isShown("Stack"));
}

TEST_F(UITabBarControllerTest, PressingATabChangesTheScreen) {
  tapTab(1);
  EXPECT_THAT(takeCalls(), ElementsAre("A willDisappear", "B didLoad", "B willAppear",
                                       "A didDisappear", "B didAppear"));
  EXPECT_EQ(tabs->selectedViewController(), stack.get());
  EXPECT_EQ(UIViewControllerState::of(b.get()).safeArea(), (EdgeInsets{.top = 64, .bottom = 49}));
  tapTab(0);
  EXPECT_THAT(takeCalls(),
              ElementsAre("B willDisappear", "A willAppear", "B didDisappear", "A didAppear"));
}

TEST_F(UITabBarControllerTest, PressingTheTabOfAStackAgainLeadsToItsRoot) {
  tapTab(1);
  stack->push(ProbeController::make("C"), UIViewController::immediately);
  takeCalls();
  tapTab(1);
  wait(0.4);
  EXPECT_EQ(UINavigationControllerState::of(stack.get()).top(), b.get());
  EXPECT_THAT(takeCalls(),
              ElementsAre("C willDisappear", "B willAppear", "C didDisappear", "B didAppear"));
}

TEST_F(UITabBarControllerTest, AScreenThatHidesTheBarSlidesItAwayUntilItIsPopped) {
  tapTab(1);
  const auto c = ProbeController::make("C");
  send<void, "setHidesBottomBarWhenPushed:">(c.get(), true);
  stack->push(c, animated);
  wait(0.4);
  EXPECT_THAT(onScreen(bar()), ElementsAre(0, 667, 375, 49));
  EXPECT_EQ(UIViewControllerState::of(c.get()).safeArea(), (EdgeInsets{.top = 64}));
  stack->push(ProbeController::make("D"), animated);
  wait(0.4);
  EXPECT_THAT(onScreen(bar()), ElementsAre(0, 667, 375, 49));
  send<NSArray, "popToRootViewControllerAnimated:">(stack.get(), true);
  wait(0.4);
  EXPECT_THAT(onScreen(bar()), ElementsAre(0, 618, 375, 49));
  EXPECT_EQ(UIViewControllerState::of(b.get()).safeArea(), (EdgeInsets{.top = 64, .bottom = 49}));
}

TEST_F(UITabBarControllerTest, PresentingFromWithinCoversTheTabsToo) {
  tapTab(1);
  takeCalls();
  b->present(ProbeController::make("C"), animated, {});
  wait(0.5);
  EXPECT_THAT(takeCalls(), ElementsAre("C didLoad", "B willDisappear", "C willAppear",
                                       "C didAppear", "B didDisappear"));
  EXPECT_FALSE(UIViewState::of(bar().get()).window());
}

TEST_F(UITabBarControllerTest, OnlyItsOwnScreensCanBeSelected) {
  tabs->setSelectedIndex(7);
  send<void, "setSelectedViewController:">(tabs.get(), ProbeController::make("C").get());
  EXPECT_EQ(tabs->selectedViewController(), a.get());
  EXPECT_THAT(takeCalls(), IsEmpty());
  tabs->setSelectedIndex(1);
  EXPECT_EQ(tabs->selectedViewController(), stack.get());
}

TEST_F(UITabBarControllerTest, ScreensCanBeReplacedAndTakenAway) {
  const auto c = ProbeController::make("C");
  tabs->setViewControllers(NSArray::of(c.get()));
  wait(0.1);
  EXPECT_EQ(tabs->selectedViewController(), c.get());
  EXPECT_TRUE(UIViewState::of(c->view().get()).window());
  EXPECT_FALSE(UIViewState::of(a->view().get()).window());
  tabs->setViewControllers({});
  wait(0.1);
  EXPECT_FALSE(tabs->selectedViewController());
  EXPECT_FALSE(UIViewState::of(c->view().get()).window());
}

TEST_F(UITabBarControllerTest, ItemsFollowTheTitlesOfTheirScreens) {
  send<void, "setTitle:">(a.get(), NSString::make("Photos"));
  EXPECT_TRUE(isShown("Photos"));
  const auto item = send<NSObject, "tabBarItem">(a.get());
  EXPECT_EQ(UITabBarItem::of(item.get()).title().utf8(), "Photos");
}

TEST_F(UITabBarControllerTest, NothingIsLeftOfTheTabs) {
  const long before = liveBoundObjects();
  {
    const AutoreleasePool pool;
    const auto other = makeNew<UITabBarController>();
    other->setViewControllers(
        NSArray::of(ProbeController::make("C").get(),
                    UINavigationController::withRoot(ProbeController::make("D")).get()));
    other->view();
    other->setSelectedIndex(1);
  }
  EXPECT_EQ(liveBoundObjects(), before);
}

}  // namespace
}  // namespace desktop::uikit
