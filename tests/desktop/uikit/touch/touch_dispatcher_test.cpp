// SPDX-License-Identifier: MIT
#include "desktop/uikit/touch/touch_dispatcher.h"

#include <gmock/gmock.h>

#include <cmath>

#include "desktop/uikit/touch/ui_gesture_recognizer.h"
#include "tests/desktop/uikit/touch_probes.h"

namespace desktop::uikit {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TouchDispatcherTest : public TouchTest {
 protected:
  Owned<UIView> box = probeIn(window(), {{100, 100}, {100, 100}});
};

TEST_F(TouchDispatcherTest, ATouchGoesToTheViewBelowIt) {
  touches().down({120, 130});
  EXPECT_EQ(of(box).last, (CGPoint{20, 30}));
  touches().move({90, 95});
  EXPECT_EQ(of(box).last, (CGPoint{-10, -5}));
  touches().up({90, 95});
  EXPECT_THAT(of(box).touches, ElementsAre("began", "moved", "ended"));
  EXPECT_FALSE(touches().isDown());
}

TEST_F(TouchDispatcherTest, ATouchBesideTheViewIsNotIts) {
  tap({99, 99});
  tap({200, 150});
  EXPECT_THAT(of(box).touches, IsEmpty());
}

TEST_F(TouchDispatcherTest, AFrontWindowTakesTheTouch) {
  const auto front = bridge::makeView<UIWindow>({{0, 0}, {150, 150}});
  front->makeKeyAndVisible();
  tap({120, 120});
  EXPECT_THAT(of(box).touches, IsEmpty());
  tap({180, 180});
  EXPECT_THAT(of(box).touches, ElementsAre("began", "ended"));
}

TEST_F(TouchDispatcherTest, AnotherFingerCancelsTheFirst) {
  touches().down({120, 120});
  touches().down({130, 130});
  EXPECT_THAT(of(box).touches, ElementsAre("began", "cancelled", "began"));
  touches().cancel();
  EXPECT_THAT(of(box).touches, ElementsAre("began", "cancelled", "began", "cancelled"));
}

TEST_F(TouchDispatcherTest, PointsThatAreNoneAreIgnored) {
  touches().down({NAN, 120});
  touches().move({120, 120});
  touches().up({120, 120});
  touches().cancel();
  touches().scroll({INFINITY, 0}, {0, 10});
  EXPECT_THAT(of(box).touches, IsEmpty());
  touches().down({120, 120});
  touches().move({INFINITY, NAN});
  touches().up({120, 120});
  EXPECT_THAT(of(box).touches, ElementsAre("began", "ended"));
}

TEST_F(TouchDispatcherTest, ARecogniserTakesTheTouchFromTheView) {
  recognize<UITapGestureRecognizer>(box, probe);
  tap({120, 120});
  EXPECT_THAT(of(box).touches, ElementsAre("began", "cancelled"));
  EXPECT_THAT(of(probe).told, ElementsAre("ended"));
}

TEST_F(TouchDispatcherTest, ARecogniserCanLeaveTheTouchToTheView) {
  const auto recognizer = recognize<UITapGestureRecognizer>(box, probe);
  send<void, "setCancelsTouchesInView:">(recognizer.get(), false);
  tap({120, 120});
  EXPECT_THAT(of(box).touches, ElementsAre("began", "ended"));
  EXPECT_THAT(of(probe).told, ElementsAre("ended"));
}

TEST_F(TouchDispatcherTest, DelayedTouchesReachTheViewWhenTheRecogniserFails) {
  const auto press = recognize<UILongPressGestureRecognizer>(box, probe);
  press->setDelaysTouchesBegan(true);
  touches().down({120, 120});
  touches().move({121, 121});
  EXPECT_THAT(of(box).touches, IsEmpty());
  touches().move({140, 140});
  EXPECT_THAT(of(box).touches, ElementsAre("began", "moved", "moved"));
  touches().up({140, 140});
  EXPECT_THAT(of(box).touches, ElementsAre("began", "moved", "moved", "ended"));
}

TEST_F(TouchDispatcherTest, DelayedTouchesNeverReachTheViewWhenTheRecogniserTakesThem) {
  const auto press = recognize<UILongPressGestureRecognizer>(box, probe);
  press->setDelaysTouchesBegan(true);
  tap({120, 120}, 0.6);
  EXPECT_THAT(of(box).touches, IsEmpty());
  EXPECT_THAT(of(probe).told, ElementsAre("began", "ended"));
  tap({120, 120}, 0.2);
  EXPECT_THAT(of(box).touches, ElementsAre("began", "ended"));
}

TEST_F(TouchDispatcherTest, TheInnermostRecogniserOfAKindWins) {
  const auto outer = Probe::make();
  recognize<UITapGestureRecognizer>(box, probe);
  recognize<UITapGestureRecognizer>(window(), outer);
  tap({120, 120});
  EXPECT_THAT(of(probe).told, ElementsAre("ended"));
  EXPECT_THAT(of(outer).told, IsEmpty());
  tap({50, 50});
  EXPECT_THAT(of(outer).told, ElementsAre("ended"));
}

TEST_F(TouchDispatcherTest, RecognisersActTogetherWhereADelegateAllowsIt) {
  const auto outer = Probe::make();
  recognize<UITapGestureRecognizer>(box, probe);
  const auto recognizer = recognize<UITapGestureRecognizer>(window(), outer);
  of(outer).letsTogether = true;
  recognizer->setDelegate(outer.get());
  tap({120, 120});
  EXPECT_THAT(of(probe).told, ElementsAre("ended"));
  EXPECT_THAT(of(outer).told, ElementsAre("ended"));
}

TEST_F(TouchDispatcherTest, TapLongPressAndPanShareNestedViews) {
  const auto tapped = Probe::make();
  const auto pressed = Probe::make();
  const auto panned = Probe::make();
  recognize<UITapGestureRecognizer>(box, tapped);
  recognize<UILongPressGestureRecognizer>(box, pressed);
  recognize<UIPanGestureRecognizer>(window(), panned);

  tap({120, 120}, 0.1);
  EXPECT_THAT(of(tapped).told, ElementsAre("ended"));
  tap({120, 120}, 0.5);
  EXPECT_THAT(of(pressed).told, ElementsAre("began", "ended"));
  drag({120, 120}, {120, 180}, 0.3);
  EXPECT_EQ(of(panned).told.front(), "began");
  EXPECT_EQ(of(panned).told.back(), "ended");

  EXPECT_THAT(of(tapped).told, ElementsAre("ended"));
  EXPECT_THAT(of(pressed).told, ElementsAre("began", "ended"));
}

TEST_F(TouchDispatcherTest, ADelegateKeepsARecogniserFromTouches) {
  const auto recognizer = recognize<UITapGestureRecognizer>(box, probe);
  recognizer->setDelegate(probe.get());
  of(probe).letsReceive = false;
  tap({120, 120});
  EXPECT_THAT(of(probe).told, IsEmpty());
  EXPECT_THAT(of(box).touches, ElementsAre("began", "ended"));
  of(probe).letsReceive = true;
  of(probe).letsBegin = false;
  tap({120, 120});
  EXPECT_THAT(of(probe).told, IsEmpty());
  of(probe).letsBegin = true;
  tap({120, 120});
  EXPECT_THAT(of(probe).told, ElementsAre("ended"));
}

TEST_F(TouchDispatcherTest, AViewThatIsTakenAwayKeepsItsTouch) {
  touches().down({120, 120});
  box->removeFromSuperview();
  touches().move({130, 130});
  touches().up({130, 130});
  EXPECT_THAT(of(box).touches, ElementsAre("began", "moved", "ended"));
}

TEST_F(TouchDispatcherTest, AViewLivesAsLongAsItsTouch) {
  touches().down({120, 120});
  box->removeFromSuperview();
  box.reset();
  const long during = ProbeView::liveObjects();
  touches().move({130, 130});
  touches().up({130, 130});
  EXPECT_EQ(ProbeView::liveObjects(), during - 1);
}

TEST_F(TouchDispatcherTest, AGestureEndsWhenItsViewIsTakenAway) {
  recognize<UILongPressGestureRecognizer>(box, probe);
  touches().down({120, 120});
  wait(0.6);
  box->removeFromSuperview();
  touches().move({130, 130});
  touches().up({130, 130});
  EXPECT_THAT(of(probe).told, ElementsAre("began", "cancelled"));
}

TEST_F(TouchDispatcherTest, AGestureEndsWhenItIsTurnedOffOrTakenAway) {
  const auto press = recognize<UILongPressGestureRecognizer>(box, probe);
  touches().down({120, 120});
  wait(0.6);
  send<void, "setEnabled:">(press.get(), false);
  EXPECT_THAT(of(probe).told, ElementsAre("began", "cancelled"));
  touches().up({120, 120});
  tap({120, 120}, 0.6);
  send<void, "setEnabled:">(press.get(), true);
  touches().down({120, 120});
  wait(0.6);
  box->removeGestureRecognizer(press);
  touches().up({120, 120});
  EXPECT_THAT(of(probe).told, ElementsAre("began", "cancelled", "began", "cancelled"));
}

TEST_F(TouchDispatcherTest, AnActionMayTakeItsViewAway) {
  recognize<UITapGestureRecognizer>(box, probe);
  of(probe).onAction = [this] {
    box->removeFromSuperview();
    box.reset();
  };
  tap({120, 120});
  EXPECT_THAT(of(probe).told, ElementsAre("ended"));
}

TEST_F(TouchDispatcherTest, LeavesNothingBehind) {
  const long before = liveBoundObjects();
  {
    const AutoreleasePool pool;
    const auto inner = probeIn(box, {{0, 0}, {50, 50}});
    recognize<UITapGestureRecognizer>(inner, probe);
    recognize<UILongPressGestureRecognizer>(inner, probe);
    recognize<UIPanGestureRecognizer>(inner, probe);
    EXPECT_GT(liveBoundObjects(), before);
    tap({120, 120});
    tap({120, 120}, 1);
    drag({120, 120}, {180, 180}, 0.2);
    inner->removeFromSuperview();
  }
  EXPECT_EQ(liveBoundObjects(), before);
}

TEST_F(TouchDispatcherTest, TapsInARowAreCounted) {
  const struct {
    CGPoint point;
    Seconds pause;
    NSInteger taps;
  } cases[] = {{{120, 120}, 1, 1},
               {{122, 122}, 0.1, 2},
               {{122, 122}, 0.1, 3},
               {{190, 190}, 0.1, 1},
               {{190, 190}, 0.5, 1}};
  for (const auto& [point, pause, taps] : cases) {
    wait(pause);
    tap(point);
    EXPECT_EQ(of(box).taps, taps) << point.x << ", after " << pause;
  }
}

}  // namespace
}  // namespace desktop::uikit
