// SPDX-License-Identifier: MIT
#include "desktop/uikit/controls/ui_switch.h"

#include <gmock/gmock.h>

#include "tests/desktop/uikit/touch_probes.h"

namespace desktop::uikit {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class UISwitchTest : public TouchTest {
 protected:
  UISwitchTest() {
    control->setFrame({{100, 100}, {51, 31}});
    window().addSubview(control);
    state().addTarget(probe, selector<"act">(), UIControlState::valueChanged);
  }
  UISwitch& state() { return UISwitch::of(control.get()); }
  // Of its knob, in the switch.
  CGFloat knobLeft() { return state().subviews().back()->frame().origin.x; }

  Owned<UIControl> control = UISwitch::make();
  CGPoint left{110, 115};
  CGPoint right{140, 115};
};

TEST_F(UISwitchTest, HasOneSize) {
  const auto made = bridge::makeView<UIControl>({{5, 6}, {300, 300}}, UISwitch::classObject());
  EXPECT_EQ(made->frame(), (CGRect{{5, 6}, {51, 31}}));
  EXPECT_EQ(made->sizeThatFits({300, 300}), (CGSize{51, 31}));
}

TEST_F(UISwitchTest, ATapTurnsItAndTellsOnce) {
  tap(left);
  EXPECT_TRUE(state().isOn());
  EXPECT_THAT(of(probe).told, ElementsAre("act"));
  tap(left);
  EXPECT_FALSE(state().isOn());
  EXPECT_THAT(of(probe).told, ElementsAre("act", "act"));
}

TEST_F(UISwitchTest, TurningItByCodeTellsNobody) {
  const CGFloat off = knobLeft();
  state().setOn(true, false);
  EXPECT_TRUE(state().isOn());
  EXPECT_GT(knobLeft(), off);
  EXPECT_THAT(of(probe).told, IsEmpty());
}

TEST_F(UISwitchTest, AKnobThatIsDraggedStaysWhereItIs) {
  drag(left, right, 0.2);
  EXPECT_TRUE(state().isOn());
  EXPECT_THAT(of(probe).told, ElementsAre("act"));
  drag(left, right, 0.2);
  EXPECT_TRUE(state().isOn()) << "it was there already";
  EXPECT_THAT(of(probe).told, ElementsAre("act"));
  drag(right, left, 0.2);
  EXPECT_FALSE(state().isOn());
}

TEST_F(UISwitchTest, AKnobThatIsDraggedBackTellsNobody) {
  touches().down(left);
  touches().move(right);
  EXPECT_TRUE(state().isOn());
  touches().move(left);
  touches().up(left);
  EXPECT_FALSE(state().isOn());
  EXPECT_THAT(of(probe).told, IsEmpty());
}

TEST_F(UISwitchTest, ATouchThatIsTakenAwayChangesNothing) {
  touches().down(left);
  touches().move(right);
  touches().cancel();
  EXPECT_FALSE(state().isOn());
  EXPECT_THAT(of(probe).told, IsEmpty());
}

TEST_F(UISwitchTest, DoesNothingWhileDisabled) {
  control->setEnabled(false);
  tap(left);
  EXPECT_FALSE(state().isOn());
  EXPECT_LT(state().alpha(), 1);
}

TEST_F(UISwitchTest, AnswersThePlatformsMessages) {
  send<void, "setOn:">(control.get(), true);
  EXPECT_TRUE((send<bool, "isOn">(control.get())));
  send<void, "setOn:animated:">(control.get(), false, true);
  EXPECT_FALSE((send<bool, "isOn">(control.get())));
}

TEST_F(UISwitchTest, LeavesNothingBehind) {
  const long before = liveBoundObjects();
  {
    const AutoreleasePool inner;
    const auto made = UISwitch::make();
    EXPECT_GT(liveBoundObjects(), before);
  }
  EXPECT_EQ(liveBoundObjects(), before);
}

}  // namespace
}  // namespace desktop::uikit
