// SPDX-License-Identifier: MIT
#include "desktop/uikit/controllers/ui_view_controller.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/uikit/application/application.h"
#include "desktop/uikit/base/platform_log.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/base/screen.h"
#include "tests/desktop/uikit/controller_probes.h"

namespace desktop::uikit {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using How = UIViewController::Animated;
constexpr How animated = UIViewController::animated;
constexpr How atOnce = UIViewController::immediately;

class UIViewControllerTest : public ControllerTest {
 protected:
  static UIViewController presentedBy(const Owned<UIViewController>& controller) {
    return send<UIViewController, "presentedViewController">(controller.get());
  }
};

TEST_F(UIViewControllerTest, LoadsItsViewWhenItIsFirstAskedForIt) {
  const auto a = ProbeController::make("A");
  EXPECT_FALSE((send<bool, "isViewLoaded">(a.get())));
  EXPECT_THAT(takeCalls(), IsEmpty());
  EXPECT_EQ(a->view().frame(), (CGRect{{0, 0}, {375, 667}}));
  EXPECT_THAT(takeCalls(), ElementsAre("A didLoad"));
  a->view();
  EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(UIViewControllerTest, ARootIsToldThatItComesAndWhenItHasCome) {
  const auto a = ProbeController::make("A");
  window().setRootViewController(a);
  EXPECT_THAT(takeCalls(), ElementsAre("A didLoad", "A willAppear"));
  wait(0.02);
  EXPECT_THAT(takeCalls(), ElementsAre("A didAppear"));
  const auto b = ProbeController::make("B");
  window().setRootViewController(b);
  wait(0.02);
  EXPECT_THAT(takeCalls(), ElementsAre("A willDisappear", "A didDisappear", "B didLoad",
                                       "B willAppear", "B didAppear"));
}

TEST_F(UIViewControllerTest, PresentingTellsBothInThePlatformsOrder) {
  const auto a = showRoot(ProbeController::make("A"));
  const auto b = ProbeController::make("B");
  a->present(b, animated, Block<void()>([] { ProbeController::calls.push_back("completed"); }));
  EXPECT_THAT(takeCalls(), ElementsAre("B didLoad", "A willDisappear", "B willAppear"));
  EXPECT_EQ(presentedBy(a), b.get());
  wait(0.35);
  EXPECT_THAT(takeCalls(), IsEmpty());
  wait(0.1);
  EXPECT_THAT(takeCalls(), ElementsAre("B didAppear", "A didDisappear", "completed"));
  EXPECT_FALSE(UIViewState::of(a->view().get()).window());

  b->dismiss(animated, Block<void()>([] { ProbeController::calls.push_back("completed"); }));
  EXPECT_THAT(takeCalls(), ElementsAre("B willDisappear", "A willAppear"));
  wait(0.45);
  EXPECT_THAT(takeCalls(), ElementsAre("A didAppear", "B didDisappear", "completed"));
  EXPECT_FALSE(presentedBy(a));
  EXPECT_TRUE(UIViewState::of(a->view().get()).window());
  EXPECT_FALSE(UIViewState::of(b->view().get()).window());
}

TEST_F(UIViewControllerTest, WithoutAnimationAllIsDoneAtOnce) {
  const auto a = showRoot(ProbeController::make("A"));
  const auto b = ProbeController::make("B");
  a->present(b, atOnce, {});
  EXPECT_THAT(takeCalls(), ElementsAre("B didLoad", "A willDisappear", "B willAppear",
                                       "B didAppear", "A didDisappear"));
  a->dismiss(atOnce, {});
  EXPECT_THAT(takeCalls(),
              ElementsAre("B willDisappear", "A willAppear", "A didAppear", "B didDisappear"));
}

TEST_F(UIViewControllerTest, APresentedViewSlidesUpFromBelowTheScreen) {
  const auto a = showRoot(ProbeController::make("A"));
  const auto b = ProbeController::make("B");
  a->present(b, animated, {});
  EXPECT_THAT(onScreen(b->view()), ElementsAre(0, 667, 375, 667));
  scheduler().advanceTo(scheduler().now() + 0.2);
  EXPECT_THAT(onScreen(b->view()), ElementsAre(0, 333.5, 375, 667));
  wait(0.3);
  EXPECT_THAT(onScreen(b->view()), ElementsAre(0, 0, 375, 667));
}

TEST_F(UIViewControllerTest, TouchesGoNowhereWhileOneTakesThePlaceOfTheOther) {
  const auto a = showRoot(ProbeController::make("A"));
  const auto button = bridge::makeView<UIControl>({{0, 0}, {375, 667}});
  button->addTarget(a.get(), selector<"press:">(), touchUpInside);
  a->view().addSubview(button);
  tap({100, 100});
  EXPECT_THAT(takeCalls(), ElementsAre("A pressed"));
  a->present(ProbeController::make("B"), animated, {});
  takeCalls();
  tap({100, 100});
  EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(UIViewControllerTest, APresentationDuringAnotherIsRefusedAndLogged) {
  const auto a = showRoot(ProbeController::make("A"));
  const auto b = ProbeController::make("B");
  const auto c = ProbeController::make("C");
  bool completed = false;
  a->present(b, animated, {});
  a->present(c, animated, Block<void()>([&completed] { completed = true; }));
  ASSERT_EQ(platformLog().size(), 1u);
  EXPECT_THAT(platformLog()[0], HasSubstr("while a presentation is in progress"));
  wait(0.5);
  EXPECT_EQ(presentedBy(a), b.get());
  a->present(c, animated, {});
  ASSERT_EQ(platformLog().size(), 2u);
  EXPECT_THAT(platformLog()[1], HasSubstr("already presenting"));
  wait(0.5);
  EXPECT_FALSE(completed);
  EXPECT_FALSE((send<bool, "isViewLoaded">(c.get())));
}

TEST_F(UIViewControllerTest, WhatIsNotInTheWindowOrIsShownAlreadyPresentsNothing) {
  const auto a = ProbeController::make("A");
  a->present(ProbeController::make("B"), animated, {});
  a->present({}, animated, {});
  showRoot(a);
  a->present(a, animated, {});
  EXPECT_EQ(platformLog().size(), 3u);
  EXPECT_FALSE(presentedBy(a));
}

TEST_F(UIViewControllerTest, DismissingWhilePresentingIsRefusedAndLogged) {
  const auto a = showRoot(ProbeController::make("A"));
  const auto b = ProbeController::make("B");
  a->present(b, animated, {});
  wait(0.1);
  b->dismiss(animated, {});
  ASSERT_EQ(platformLog().size(), 1u);
  EXPECT_THAT(platformLog()[0], HasSubstr("Attempt to dismiss"));
  wait(0.5);
  EXPECT_EQ(presentedBy(a), b.get());
}

TEST_F(UIViewControllerTest, DismissingTwiceDismissesOne) {
  const auto a = showRoot(ProbeController::make("A"));
  const auto b = ProbeController::make("B");
  const auto c = ProbeController::make("C");
  a->present(b, atOnce, {});
  b->present(c, atOnce, {});
  int completions = 0;
  const Block<void()> done([&completions] { ++completions; });
  c->dismiss(animated, done);
  c->dismiss(animated, done);
  wait(0.5);
  EXPECT_EQ(completions, 1);
  EXPECT_EQ(presentedBy(a), b.get());
  EXPECT_FALSE(presentedBy(b));
  EXPECT_EQ(platformLog().size(), 1u);
}

TEST_F(UIViewControllerTest, APresenterDismissesEverythingAboveIt) {
  const auto a = showRoot(ProbeController::make("A"));
  const auto b = ProbeController::make("B");
  const auto c = ProbeController::make("C");
  a->present(b, atOnce, {});
  b->present(c, atOnce, {});
  takeCalls();
  a->dismiss(animated, {});
  wait(0.5);
  EXPECT_THAT(takeCalls(),
              ElementsAre("C willDisappear", "A willAppear", "A didAppear", "C didDisappear"));
  EXPECT_FALSE(presentedBy(a));
  EXPECT_EQ(UIViewState::of(window()).subviews().size(), 1u);
}

TEST_F(UIViewControllerTest, ControllersGoWhenTheyAreDismissed) {
  const auto a = showRoot(ProbeController::make("A"));
  const long before = liveBoundObjects();
  {
    const AutoreleasePool pool;
    const auto navigation = UINavigationController::withRoot(ProbeController::make("B"));
    a->present(navigation, animated, {});
    wait(0.5);
    navigation->push(ProbeController::make("C"), animated);
    wait(0.5);
    navigation->dismiss(animated, {});
    wait(0.5);
  }
  EXPECT_EQ(liveBoundObjects(), before);
}

TEST_F(UIViewControllerTest, NothingIsLeftOfAnApplicationThatGoesInTheMiddle) {
  showRoot(ProbeController::make("warm"));
  resetApplication();
  const long before = liveBoundObjects();
  {
    const AutoreleasePool pool;
    const auto made = bridge::makeView<UIWindow>(rectOfSize(screen().size));
    made->makeKeyAndVisible();
    const auto a = showRoot(ProbeController::make("A"));
    a->present(ProbeController::make("B"), animated, Block<void()>([a] { a->view(); }));
    wait(0.1);
    resetApplication();
  }
  EXPECT_EQ(liveBoundObjects(), before);
}

TEST_F(UIViewControllerTest, AChildInsideASubviewHearsOfItsParentsComingAndGoing) {
  const auto a = ProbeController::make("A");
  const auto b = ProbeController::make("B");
  send<void, "addChildViewController:">(a.get(), b.get());
  a->view().addSubview(b->view());
  showRoot(a);
  EXPECT_EQ((send<UIViewController, "parentViewController">(b.get())), a.get());
  a->present(ProbeController::make("C"), atOnce, {});
  EXPECT_THAT(takeCalls(),
              ElementsAre("C didLoad", "A willDisappear", "B willDisappear", "C willAppear",
                          "C didAppear", "A didDisappear", "B didDisappear"));
}

TEST_F(UIViewControllerTest, AViewsCommandsGoOnToItsControllerAndItsPresenter) {
  const auto a = showRoot(ProbeController::make("A"));
  const auto b = ProbeController::make("B");
  a->present(b, atOnce, {});
  const auto next = [](UIResponder responder) {
    return send<UIResponder, "nextResponder">(responder);
  };
  EXPECT_EQ(next(b->view()), b.get());
  EXPECT_EQ(next(b.get()), a.get());
}

TEST_F(UIViewControllerTest, AScreenOfAStackDismissesWhatItShowsAndThenTheStack) {
  const auto a = showRoot(ProbeController::make("A"));
  const auto b = ProbeController::make("B");
  const auto stack = UINavigationController::withRoot(b);
  a->present(stack, atOnce, {});
  const auto alert = UIAlertController::make(NSString::make("Title"), {}, UIAlertController::alert);
  b->present(alert, atOnce, {});
  EXPECT_EQ(presentedBy(b), alert);
  EXPECT_EQ((send<UIViewController, "presentingViewController">(b.get())), a.get());
  b->dismiss(animated, {});
  wait(0.5);
  EXPECT_FALSE(presentedBy(b));
  EXPECT_EQ(presentedBy(a), stack.get());
  b->dismiss(animated, {});
  wait(0.5);
  EXPECT_FALSE(presentedBy(a));
  EXPECT_TRUE(UIViewState::of(a->view().get()).window());
}

TEST_F(UIViewControllerTest, ADoneButtonOnTheBarDismisses) {
  const auto a = showRoot(ProbeController::make("A"));
  const auto b = ProbeController::make("B");
  ProbeController::of(b.get()).onPress = [&b] { b->dismiss(animated, {}); };
  const auto done = UIBarButtonItem::withTitle(NSString::make("Dismiss"), UIBarButtonItem::done,
                                               b.get(), selector<"press:">());
  b->navigationItem().setLeftBarButtonItems(NSArray::of(done.get()));
  a->present(UINavigationController::withRoot(b), animated, {});
  wait(0.5);
  takeCalls();
  tap("Dismiss");
  tap("Dismiss");
  wait(0.5);
  EXPECT_THAT(takeCalls(), ElementsAre("B pressed", "B willDisappear", "A willAppear",
                                       "A didAppear", "B didDisappear"));
}

TEST_F(UIViewControllerTest, EveryScreenFillsAWindowThatTurns) {
  const auto a = showRoot(ProbeController::make("A"));
  const auto b = ProbeController::make("B");
  a->present(b, atOnce, {});
  takeCalls();
  application().resize({667, 375});
  application().prepareFrame();
  EXPECT_THAT(takeCalls(), ElementsAre("A 667 x 375", "B 667 x 375"));
  EXPECT_THAT(onScreen(b->view()), ElementsAre(0, 0, 667, 375));
  b->dismiss(atOnce, {});
  EXPECT_THAT(onScreen(a->view()), ElementsAre(0, 0, 667, 375));
}

TEST_F(UIViewControllerTest, ATitleReachesTheItemsMadeOfIt) {
  const auto a = ProbeController::make("A");
  EXPECT_EQ((send<NSString, "title">(a->navigationItem())).utf8(), "A");
  send<void, "setTitle:">(a.get(), NSString::make("Next"));
  EXPECT_EQ((send<NSString, "title">(a->navigationItem())).utf8(), "Next");
}

}  // namespace
}  // namespace desktop::uikit
