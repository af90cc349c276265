// SPDX-License-Identifier: MIT
#include "desktop/uikit/controls/ui_control.h"

#include <gmock/gmock.h>

#include "tests/desktop/uikit/touch_probes.h"

namespace desktop::uikit {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class UIControlTest : public TouchTest {
 protected:
  UIControlTest() { window().addSubview(control); }

  void add(SEL action, NSUInteger events = UIControlState::touchUpInside) {
    state().addTarget(probe, action, events);
  }
  UIControlState& state() { return UIControlState::of(control.get()); }

  Owned<UIControl> control = bridge::makeView<UIControl>({{100, 100}, {50, 20}});
  CGPoint inside{110, 110};
};

TEST_F(UIControlTest, ActsWhenTheFingerIsLiftedInside) {
  control->addTarget(probe, selector<"act:">(), touchUpInside);
  touches().down(inside);
  EXPECT_THAT(of(probe).told, IsEmpty());
  touches().up(inside);
  EXPECT_THAT(of(probe).told, ElementsAre("act:"));
}

TEST_F(UIControlTest, ATargetAddedTwiceActsOnce) {
  control->addTarget(probe, selector<"act:">(), touchUpInside);
  control->addTarget(probe, selector<"act:">(), touchUpInside);
  tap(inside);
  EXPECT_THAT(of(probe).told, ElementsAre("act:"));
}

TEST_F(UIControlTest, ActionsTakeUpToTwoArguments) {
  add(selector<"act">());
  add(selector<"act:">());
  add(selector<"act:event:">());
  tap(inside);
  EXPECT_THAT(of(probe).told, ElementsAre("act", "act:", "act:event:"));
}

TEST_F(UIControlTest, AFingerMayLeaveBySeventyPoints) {
  const struct {
    CGPoint end;
    bool acts;
  } cases[] = {{{150 + 69, 110}, true},
               {{150 + 71, 110}, false},
               {{110, 100 - 69}, true},
               {{110, 100 - 71}, false}};
  add(selector<"act">());
  add(selector<"act:">(), UIControlState::touchUpOutside);
  for (const auto& [end, acts] : cases) {
    of(probe).told.clear();
    touches().down(inside);
    touches().move(end);
    EXPECT_EQ(state().isHighlighted(), acts) << end.x << ", " << end.y;
    touches().up(end);
    EXPECT_THAT(of(probe).told, ElementsAre(acts ? "act" : "act:")) << end.x << ", " << end.y;
  }
}

TEST_F(UIControlTest, TellsOfEveryStepOfAFinger) {
  add(selector<"act">(), UIControlState::touchDown | UIControlState::touchDragExit);
  add(selector<"act:">(), UIControlState::touchDragInside | UIControlState::touchDragEnter);
  add(selector<"act:event:">(), UIControlState::touchDragOutside | UIControlState::touchCancel);
  touches().down(inside);
  touches().move({115, 115});
  touches().move({300, 115});
  touches().move({301, 115});
  touches().move({120, 115});
  touches().cancel();
  EXPECT_THAT(of(probe).told,
              ElementsAre("act",                // down
                          "act:",               // moved inside
                          "act", "act:event:",  // left, outside
                          "act:event:",         // outside
                          "act:", "act:",       // back, inside
                          "act:event:"));       // taken away
}

TEST_F(UIControlTest, IsHighlightedUnderTheFinger) {
  touches().down(inside);
  EXPECT_EQ(state().state(), UIControlState::highlighted);
  EXPECT_TRUE(state().isTracking());
  touches().up(inside);
  EXPECT_EQ(state().state(), UIControlState::normal);
  EXPECT_FALSE(state().isTracking());
}

TEST_F(UIControlTest, DoesNothingWhileDisabled) {
  add(selector<"act">());
  send<void, "setEnabled:">(control.get(), false);
  tap(inside);
  EXPECT_EQ(state().state(), UIControlState::disabled);
  send<void, "setEnabled:">(control.get(), true);
  touches().down(inside);
  send<void, "setEnabled:">(control.get(), false);
  touches().up(inside);
  EXPECT_THAT(of(probe).told, IsEmpty());
}

TEST_F(UIControlTest, TargetsAreTakenAwayByWhatTheyShare) {
  const auto other = Probe::make();
  const auto setUp = [&] {
    state().removeTarget({}, nullptr, ~NSUInteger{0});
    add(selector<"act">(), UIControlState::touchUpInside | UIControlState::touchDown);
    add(selector<"act:">());
    state().addTarget(other, selector<"act:">(), UIControlState::touchUpInside);
  };
  setUp();
  state().removeTarget(probe, selector<"act">(), UIControlState::touchDown);
  EXPECT_EQ(state().targets().size(), 3u);
  state().removeTarget(probe, nullptr, UIControlState::touchUpInside);
  EXPECT_EQ(state().targets().size(), 1u);
  setUp();
  state().removeTarget({}, selector<"act:">(), UIControlState::touchUpInside);
  EXPECT_EQ(state().targets().size(), 1u);
}

TEST_F(UIControlTest, ForgetsTargetsThatHaveGone) {
  add(selector<"act">());
  {
    const AutoreleasePool pool;
    const auto gone = Probe::make();
    state().addTarget(gone, selector<"act:">(), UIControlState::touchUpInside);
    EXPECT_EQ(state().targets().size(), 2u);
  }
  EXPECT_EQ(state().targets().size(), 1u);
  tap(inside);
  EXPECT_THAT(of(probe).told, ElementsAre("act"));
}

TEST_F(UIControlTest, AnswersWhoIsTold) {
  add(selector<"act:">());
  add(selector<"act">(), UIControlState::touchDown);
  const auto names = send<NSArray, "actionsForTarget:forControlEvent:">(
      control.get(), probe.get(), NSUInteger{UIControlState::touchUpInside});
  ASSERT_EQ(names.count(), 1u);
  EXPECT_EQ(NSString(names.at(0).get()).utf8(), "act:");
  EXPECT_EQ((send<NSUInteger, "allControlEvents">(control.get())),
            NSUInteger{UIControlState::touchUpInside | UIControlState::touchDown});
  const auto targets = send<NSSet, "allTargets">(control.get());
  EXPECT_EQ(targets.anyObject(), probe.get());
}

TEST_F(UIControlTest, AnActionMayTakeTheControlAway) {
  const auto other = Probe::make();
  add(selector<"act">());
  state().addTarget(other, selector<"act">(), UIControlState::touchUpInside);
  of(probe).onAction = [&] {
    control->removeFromSuperview();
    control.reset();
  };
  tap(inside);
  EXPECT_THAT(of(other).told, ElementsAre("act"));
}

TEST_F(UIControlTest, NobodyIsToldOnceItIsOffScreen) {
  add(selector<"act">(), UIControlState::touchUpInside | UIControlState::touchUpOutside);
  touches().down(inside);
  control->removeFromSuperview();
  probe.reset();
  touches().up(inside);
  EXPECT_FALSE(state().isHighlighted());
}

TEST_F(UIControlTest, KeepsATapFromTheViewsAroundIt) {
  const auto around = Probe::make();
  const auto recognizer = recognize<UITapGestureRecognizer>(window(), around);
  add(selector<"act">());
  tap(inside);
  EXPECT_THAT(of(around).told, IsEmpty());
  EXPECT_THAT(of(probe).told, ElementsAre("act"));
  tap({10, 10});
  EXPECT_THAT(of(around).told, ElementsAre("ended"));
}

TEST_F(UIControlTest, SendsActionsWithoutATouch) {
  add(selector<"act:event:">(), UIControlState::valueChanged);
  send<void, "sendActionsForControlEvents:">(control.get(),
                                             NSUInteger{UIControlState::valueChanged});
  EXPECT_THAT(of(probe).told, ElementsAre("act:event: without an event"));
}

}  // namespace
}  // namespace desktop::uikit
