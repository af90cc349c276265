// SPDX-License-Identifier: MIT
#include "desktop/uikit/controls/ui_control.h"

#include <gmock/gmock.h>

#include "tests/desktop/uikit/touch_probes.h"

namespace desktop::uikit {
namespace {

using bridge::selector;
using testing::ElementsAre;
using testing::IsEmpty;

class UIControlTest : public TouchTest {
 protected:
  UIControlTest() { window().addSubview(control); }

  void add(SEL action, NSUInteger events = UIControl::touchUpInside) {
    state().addTarget(probe, action, events);
  }
  UIControl& state() { return UIControl::of(control.get()); }

  bridge::Owned<bridge::UIControl> control =
      bridge::makeView<bridge::UIControl>({{100, 100}, {50, 20}});
  CGPoint inside{110, 110};
};

TEST_F(UIControlTest, ActsWhenTheFingerIsLiftedInside) {
  control->addTarget(probe, selector<"act:">(), bridge::touchUpInside);
  touches().down(inside);
  EXPECT_THAT(of(probe).told, IsEmpty());
  touches().up(inside);
  EXPECT_THAT(of(probe).told, ElementsAre("act:"));
}

TEST_F(UIControlTest, ATargetAddedTwiceActsOnce) {
  control->addTarget(probe, selector<"act:">(), bridge::touchUpInside);
  control->addTarget(probe, selector<"act:">(), bridge::touchUpInside);
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
  add(selector<"act:">(), UIControl::touchUpOutside);
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
  add(selector<"act">(), UIControl::touchDown | UIControl::touchDragExit);
  add(selector<"act:">(), UIControl::touchDragInside | UIControl::touchDragEnter);
  add(selector<"act:event:">(), UIControl::touchDragOutside | UIControl::touchCancel);
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
  EXPECT_EQ(state().state(), UIControl::highlighted);
  EXPECT_TRUE(state().isTracking());
  touches().up(inside);
  EXPECT_EQ(state().state(), UIControl::normal);
  EXPECT_FALSE(state().isTracking());
}

TEST_F(UIControlTest, DoesNothingWhileDisabled) {
  add(selector<"act">());
  bridge::send<void, "setEnabled:">(control.get(), false);
  tap(inside);
  EXPECT_EQ(state().state(), UIControl::disabled);
  bridge::send<void, "setEnabled:">(control.get(), true);
  touches().down(inside);
  bridge::send<void, "setEnabled:">(control.get(), false);
  touches().up(inside);
  EXPECT_THAT(of(probe).told, IsEmpty());
}

TEST_F(UIControlTest, TargetsAreTakenAwayByWhatTheyShare) {
  const auto other = Probe::make();
  const auto setUp = [&] {
    state().removeTarget({}, nullptr, ~NSUInteger{0});
    add(selector<"act">(), UIControl::touchUpInside | UIControl::touchDown);
    add(selector<"act:">());
    state().addTarget(other, selector<"act:">(), UIControl::touchUpInside);
  };
  setUp();
  state().removeTarget(probe, selector<"act">(), UIControl::touchDown);
  EXPECT_EQ(state().targets().size(), 3u);
  state().removeTarget(probe, nullptr, UIControl::touchUpInside);
  EXPECT_EQ(state().targets().size(), 1u);
  setUp();
  state().removeTarget({}, selector<"act:">(), UIControl::touchUpInside);
  EXPECT_EQ(state().targets().size(), 1u);
}

TEST_F(UIControlTest, AnswersWhoIsTold) {
  add(selector<"act:">());
  add(selector<"act">(), UIControl::touchDown);
  const auto names = bridge::send<bridge::NSArray, "actionsForTarget:forControlEvent:">(
      control.get(), probe.get(), NSUInteger{UIControl::touchUpInside});
  ASSERT_EQ(names.count(), 1u);
  EXPECT_EQ(bridge::NSString(names.at(0).get()).utf8(), "act:");
  EXPECT_EQ((bridge::send<NSUInteger, "allControlEvents">(control.get())),
            NSUInteger{UIControl::touchUpInside | UIControl::touchDown});
  const auto targets = bridge::send<bridge::NSSet, "allTargets">(control.get());
  EXPECT_EQ(targets.anyObject(), probe.get());
}

TEST_F(UIControlTest, AnActionMayTakeTheControlAway) {
  const auto other = Probe::make();
  add(selector<"act">());
  state().addTarget(other, selector<"act">(), UIControl::touchUpInside);
  of(probe).onAction = [&] {
    control->removeFromSuperview();
    control.reset();
  };
  tap(inside);
  EXPECT_THAT(of(other).told, ElementsAre("act"));
}

TEST_F(UIControlTest, NobodyIsToldOnceItIsOffScreen) {
  add(selector<"act">(), UIControl::touchUpInside | UIControl::touchUpOutside);
  touches().down(inside);
  control->removeFromSuperview();
  probe.reset();
  touches().up(inside);
  EXPECT_FALSE(state().isHighlighted());
}

TEST_F(UIControlTest, KeepsATapFromTheViewsAroundIt) {
  const auto around = Probe::make();
  const auto recognizer = recognize<handles::UITapGestureRecognizer>(window(), around);
  add(selector<"act">());
  tap(inside);
  EXPECT_THAT(of(around).told, IsEmpty());
  EXPECT_THAT(of(probe).told, ElementsAre("act"));
  tap({10, 10});
  EXPECT_THAT(of(around).told, ElementsAre("ended"));
}

TEST_F(UIControlTest, SendsActionsWithoutATouch) {
  add(selector<"act:event:">(), UIControl::valueChanged);
  bridge::send<void, "sendActionsForControlEvents:">(control.get(),
                                                     NSUInteger{UIControl::valueChanged});
  EXPECT_THAT(of(probe).told, ElementsAre("act:event: without an event"));
}

}  // namespace
}  // namespace desktop::uikit
