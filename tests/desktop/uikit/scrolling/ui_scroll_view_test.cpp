// SPDX-License-Identifier: MIT
#include "desktop/uikit/scrolling/ui_scroll_view.h"

#include <gmock/gmock.h>

#include <cmath>

#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/controls/ui_control.h"
#include "tests/desktop/uikit/touch_probes.h"

namespace desktop::uikit {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class UIScrollViewTest : public TouchTest {
 protected:
  UIScrollViewTest() {
    window().addSubview(view);
    view->setContentSize({300, 2000});
    send<void, "setDelegate:">(view.get(), probe.get());
  }
  ~UIScrollViewTest() override { send<void, "setDelegate:">(view.get(), NSObject()); }

  UIScrollViewState& state() { return UIScrollViewState::of(view.get()); }
  CGPoint offset() { return view->contentOffset(); }
  void set(const char* name, bool value) {
    dispatch<void>(view.get().get(), sel_registerName(name), BOOL{value});
  }

  Owned<UIScrollView> view = bridge::makeView<UIScrollView>({{0, 0}, {300, 500}});
};

TEST_F(UIScrollViewTest, FollowsTheFingerAfterTenPoints) {
  touches().down({100, 400});
  touches().move({100, 391});
  EXPECT_EQ(offset(), CGPoint{});
  touches().move({100, 389});
  EXPECT_EQ(offset(), (CGPoint{0, 1}));
  touches().move({100, 300});
  EXPECT_EQ(offset(), (CGPoint{0, 90}));
  wait(0.2);
  touches().up({100, 300});
  EXPECT_EQ(offset(), (CGPoint{0, 90}));
  EXPECT_THAT(of(probe).scrolling, ElementsAre("will begin dragging", "did end dragging"));
  EXPECT_EQ(of(probe).scrolls, 2);
}

TEST_F(UIScrollViewTest, GoesOnAfterTheFingerAndComesToAStop) {
  drag({100, 450}, {100, 350}, 0.1);
  EXPECT_TRUE(state().isDecelerating());
  const CGFloat lifted = offset().y;
  wait(0.1);
  EXPECT_GT(offset().y, lifted + 50);
  wait(5);
  EXPECT_FALSE(state().isDecelerating());
  EXPECT_NEAR(offset().y, lifted + 495, 20);
  EXPECT_EQ(offset().y * 2, std::round(offset().y * 2));
  EXPECT_THAT(of(probe).scrolling, ElementsAre("will begin dragging", "did end dragging, goes on",
                                               "did end decelerating"));
}

TEST_F(UIScrollViewTest, ComesToAStopAtTheEndExactly) {
  for (int flick = 0; flick < 10; ++flick) {
    drag({100, 450}, {100, 50}, 0.1);
    wait(0.3);
  }
  wait(5);
  EXPECT_EQ(offset(), (CGPoint{0, 1500}));
  EXPECT_FALSE(state().isDecelerating());
  EXPECT_TRUE(screen().damage.take().size() > 0);
}

TEST_F(UIScrollViewTest, StretchesBeyondTheEndAndGoesBack) {
  touches().down({100, 100});
  touches().move({100, 210});
  EXPECT_LT(offset().y, -40);
  EXPECT_GT(offset().y, -60);
  wait(0.2);
  touches().up({100, 210});
  wait(2);
  EXPECT_EQ(offset(), CGPoint{});
  EXPECT_THAT(of(probe).scrolling, ElementsAre("will begin dragging", "did end dragging, goes on",
                                               "did end decelerating"));
}

TEST_F(UIScrollViewTest, StopsAtTheEndWhereItDoesNotBounce) {
  set("setBounces:", false);
  touches().down({100, 100});
  touches().move({100, 210});
  EXPECT_EQ(offset(), CGPoint{});
  touches().up({100, 210});
  EXPECT_FALSE(state().isDecelerating());
}

TEST_F(UIScrollViewTest, InsetsCountAsContent) {
  state().setContentInset({64, 0, 49, 0});
  EXPECT_EQ(offset(), (CGPoint{0, -64}));
  for (int flick = 0; flick < 10; ++flick) drag({100, 450}, {100, 50}, 0.1);
  wait(5);
  EXPECT_EQ(offset(), (CGPoint{0, 1549}));
}

TEST_F(UIScrollViewTest, ATouchStopsItAndDoesNothingElse) {
  const auto box = probeIn(view, {{0, 0}, {300, 2000}});
  drag({100, 450}, {100, 350}, 0.1);
  wait(0.1);
  touches().down({100, 300});
  const CGPoint stopped = offset();
  EXPECT_FALSE(state().isDecelerating());
  touches().up({100, 300});
  wait(1);
  EXPECT_EQ(offset(), stopped);
  EXPECT_THAT(of(probe).scrolling, ElementsAre("will begin dragging", "did end dragging, goes on",
                                               "did end decelerating"));
  EXPECT_THAT(of(box).touches, IsEmpty());
}

TEST_F(UIScrollViewTest, OnlyWaysWithContentAreDragged) {
  drag({200, 300}, {100, 305}, 0.2);
  EXPECT_EQ(offset(), CGPoint{});
  EXPECT_THAT(of(probe).scrolling, IsEmpty());
  drag({200, 300}, {100, 250}, 0.2, 0.2);
  EXPECT_EQ(offset().x, 0);
  EXPECT_GT(offset().y, 20);
}

TEST_F(UIScrollViewTest, ADirectionCanBeLocked) {
  set("setDirectionalLockEnabled:", true);
  view->setContentSize({2000, 2000});
  drag({200, 400}, {180, 300}, 0.2, 0.2);
  EXPECT_EQ(offset().x, 0);
  EXPECT_GT(offset().y, 80);
}

TEST_F(UIScrollViewTest, TurnsOnePageAtATime) {
  set("setPagingEnabled:", true);
  view->setContentSize({1200, 500});
  const struct {
    CGFloat from;
    CGFloat to;
    Seconds time;
    Seconds rest;
    CGFloat page;
  } cases[] = {{280, 100, 0.5, 0.2, 1},  // over the half
               {280, 200, 0.5, 0.2, 1},  // not far enough
               {280, 200, 0.05, 0, 2},   // fast
               {280, 10, 0.05, 0, 3},    // far and fast
               {280, 10, 0.05, 0, 3},    // no page behind the last
               {20, 100, 0.05, 0, 2}};
  for (const auto& [from, to, time, rest, page] : cases) {
    drag({from, 100}, {to, 100}, time, rest);
    wait(3);
    EXPECT_EQ(offset(), (CGPoint{page * 300, 0})) << "from " << from << " to " << to;
  }
}

TEST_F(UIScrollViewTest, APageThatWasStoppedOnItsWayIsTurned) {
  set("setPagingEnabled:", true);
  view->setContentSize({1200, 500});
  drag({280, 100}, {200, 100}, 0.05);
  wait(0.1);
  tap({100, 100}, 0.3);
  EXPECT_NE(std::fmod(offset().x, 300), 0);
  wait(3);
  EXPECT_EQ(std::fmod(offset().x, 300), 0);
}

TEST_F(UIScrollViewTest, TheDelegateMayWantAnotherEnd) {
  CGPoint expected;
  of(probe).onEnd = [&](CGPoint* target) {
    expected = *target;
    *target = {0, 123};
  };
  drag({100, 450}, {100, 350}, 0.1);
  EXPECT_NEAR(expected.y, 585, 20);
  wait(5);
  EXPECT_EQ(offset(), (CGPoint{0, 123}));
  of(probe).onEnd = [](CGPoint* target) { *target = {NAN, INFINITY}; };
  drag({100, 450}, {100, 350}, 0.1);
  wait(5);
  EXPECT_TRUE(std::isfinite(offset().y));
}

TEST_F(UIScrollViewTest, SettingTheOffsetStopsIt) {
  drag({100, 450}, {100, 350}, 0.1);
  view->setContentOffset({0, 7});
  wait(1);
  EXPECT_EQ(offset(), (CGPoint{0, 7}));
  view->setContentOffset({NAN, 3});
  EXPECT_EQ(offset(), (CGPoint{0, 7}));
}

TEST_F(UIScrollViewTest, MovesToAnOffsetInTime) {
  state().setContentOffsetAnimated({0, 600}, true);
  EXPECT_EQ(offset(), CGPoint{});
  wait(0.15);
  EXPECT_NEAR(offset().y, 300, 40);
  wait(0.2);
  EXPECT_EQ(offset(), (CGPoint{0, 600}));
  EXPECT_THAT(of(probe).scrolling, ElementsAre("did end animation"));
  EXPECT_GT(of(probe).scrolls, 10);
}

TEST_F(UIScrollViewTest, AWheelMovesTheInnermostViewThatCanMove) {
  const auto inner = bridge::makeView<UIScrollView>({{0, 0}, {300, 300}});
  inner->setContentSize({300, 400});
  view->addSubview(inner);
  touches().scroll({100, 100}, {0, 70});
  EXPECT_EQ(inner->contentOffset(), (CGPoint{0, 70}));
  EXPECT_EQ(offset(), CGPoint{});
  touches().scroll({100, 100}, {0, 70});
  EXPECT_EQ(inner->contentOffset(), (CGPoint{0, 100}));
  touches().scroll({100, 100}, {0, 70});
  EXPECT_EQ(offset(), (CGPoint{0, 70}));
  touches().scroll({100, 100}, {0, -1000});
  EXPECT_EQ(inner->contentOffset(), CGPoint{});
  touches().scroll({100, 100}, {0, -1000});
  EXPECT_EQ(offset(), CGPoint{});
  touches().scroll({350, 600}, {0, 70});
  EXPECT_EQ(offset(), CGPoint{});
}

TEST_F(UIScrollViewTest, TheInnerViewIsDraggedAlongItsWay) {
  const auto pager = bridge::makeView<UIScrollView>({{0, 0}, {300, 500}});
  window().addSubview(pager);
  pager->addSubview(view);
  pager->setContentSize({900, 500});
  drag({200, 300}, {200, 200}, 0.2, 0.2);
  EXPECT_EQ(offset(), (CGPoint{0, 90}));
  EXPECT_EQ(pager->contentOffset(), CGPoint{});
  drag({200, 300}, {100, 300}, 0.2, 0.2);
  EXPECT_EQ(offset(), (CGPoint{0, 90}));
  EXPECT_EQ(pager->contentOffset(), (CGPoint{90, 0}));
}

TEST_F(UIScrollViewTest, ButtonsInItWork) {
  const auto button = bridge::makeView<UIControl>({{0, 0}, {200, 200}});
  view->addSubview(button);
  const auto target = Probe::make();
  button->addTarget(target.get(), selector<"act">(), touchUpInside);
  tap({100, 100});
  tap({100, 100}, 0.3);
  EXPECT_THAT(of(target).told, ElementsAre("act", "act"));
  drag({100, 150}, {100, 100}, 0.3, 0.2);
  EXPECT_THAT(of(target).told, ElementsAre("act", "act"));
  EXPECT_EQ(offset(), (CGPoint{0, 40}));
}

TEST_F(UIScrollViewTest, ContentIsTouchedOnceTheFingerStays) {
  const auto box = probeIn(view, {{0, 0}, {300, 2000}});
  touches().down({100, 100});
  wait(0.14);
  EXPECT_THAT(of(box).touches, IsEmpty());
  wait(0.02);
  EXPECT_THAT(of(box).touches, ElementsAre("began"));
  touches().move({100, 80});
  EXPECT_THAT(of(box).touches, ElementsAre("began", "cancelled"));
  touches().up({100, 80});
  drag({100, 100}, {100, 50}, 0.1);
  EXPECT_THAT(of(box).touches, ElementsAre("began", "cancelled"));
}

TEST_F(UIScrollViewTest, DoesNotScrollWhileTurnedOff) {
  set("setScrollEnabled:", false);
  drag({100, 400}, {100, 100}, 0.1);
  touches().scroll({100, 100}, {0, 50});
  EXPECT_EQ(offset(), CGPoint{});
  EXPECT_THAT(of(probe).scrolling, IsEmpty());
}

TEST_F(UIScrollViewTest, StaysWhereItIsOnceItIsOffScreen) {
  drag({100, 450}, {100, 350}, 0.1);
  view->removeFromSuperview();
  const CGPoint left = offset();
  of(probe).scrolling.clear();
  wait(1);
  EXPECT_EQ(offset(), left);
  EXPECT_FALSE(state().isDecelerating());
}

TEST_F(UIScrollViewTest, MayGoWhileItMoves) {
  drag({100, 450}, {100, 350}, 0.1);
  const long before = UIScrollViewState::liveObjects();
  view->removeFromSuperview();
  view.reset();
  EXPECT_EQ(UIScrollViewState::liveObjects(), before - 1);
  wait(1);
}

TEST_F(UIScrollViewTest, ContentThatShrinksIsNotLeftBehind) {
  view->setContentOffset({0, 1500});
  view->setContentSize({300, 700});
  EXPECT_EQ(offset(), (CGPoint{0, 200}));
  view->setContentSize({300, 100});
  EXPECT_EQ(offset(), CGPoint{});
  view->setContentSize({INFINITY, NAN});
  EXPECT_EQ(view->contentSize(), CGSize{});
}

}  // namespace
}  // namespace desktop::uikit
