// SPDX-License-Identifier: MIT
#include "desktop/uikit/controls/ui_segmented_control.h"

#include <gmock/gmock.h>

#include "desktop/uikit/graphics/ui_color.h"
#include "tests/desktop/uikit/recording_canvas.h"
#include "tests/desktop/uikit/touch_probes.h"

namespace desktop::uikit {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class UISegmentedControlTest : public TouchTest {
 protected:
  // Three segments of 100 points.
  UISegmentedControlTest() {
    state().setTitles({"one", "two", "three"});
    control->setFrame({{30, 100}, {300, 29}});
    window().addSubview(control);
    state().addTarget(probe, selector<"act">(), UIControlState::valueChanged);
  }
  UISegmentedControl& state() { return UISegmentedControl::of(control.get()); }
  static CGPoint in(NSInteger segment) { return {80 + 100.0 * static_cast<double>(segment), 115}; }

  Owned<UIControl> control = UISegmentedControl::make();
};

TEST_F(UISegmentedControlTest, HasASegmentForEachTitle) {
  EXPECT_EQ(state().numberOfSegments(), 3);
  EXPECT_EQ(state().titleOf(2).utf8(), "three");
  EXPECT_FALSE(state().titleOf(3));
  EXPECT_FALSE(state().titleOf(-1));
  EXPECT_EQ(state().selected(), UISegmentedControl::noSegment);
  state().setTitles({"only"});
  EXPECT_EQ(state().numberOfSegments(), 1);
  EXPECT_EQ(control->subviews().count(), 1U);
}

TEST_F(UISegmentedControlTest, IsMadeOfAnArrayOfTitles) {
  const auto made = makeWith<UIControl, "initWithItems:">(
      UISegmentedControl::classObject(), NSArray::of(NSString::make("a"), NSString::make("b")));
  EXPECT_EQ((send<NSInteger, "numberOfSegments">(made.get())), 2);
  EXPECT_EQ((send<NSInteger, "selectedSegmentIndex">(made.get())), -1);
  EXPECT_GT(made->frame().size.width, 40);
  EXPECT_EQ(made->frame().size.height, 29);
}

TEST_F(UISegmentedControlTest, ATapSelectsAndTellsOnce) {
  tap(in(1));
  EXPECT_EQ(state().selected(), 1);
  tap(in(1));
  EXPECT_THAT(of(probe).told, ElementsAre("act"));
  tap(in(2));
  EXPECT_EQ(state().selected(), 2);
  EXPECT_THAT(of(probe).told, ElementsAre("act", "act"));
}

TEST_F(UISegmentedControlTest, SelectingByCodeTellsNobody) {
  state().select(1);
  EXPECT_EQ(state().selected(), 1);
  state().select(3);
  EXPECT_EQ(state().selected(), UISegmentedControl::noSegment);
  EXPECT_THAT(of(probe).told, IsEmpty());
}

TEST_F(UISegmentedControlTest, AFingerLiftedElsewhereSelectsNothing) {
  state().select(2);
  drag(in(0), in(1), 0.2);
  drag(in(0), {in(0).x, 300}, 0.2);
  EXPECT_EQ(state().selected(), 2);
  touches().down(in(0));
  touches().move(in(1));
  touches().move(in(0));
  touches().up(in(0));
  EXPECT_EQ(state().selected(), 0) << "it came back";
}

TEST_F(UISegmentedControlTest, ATouchThatIsTakenAwayChangesNothing) {
  touches().down(in(0));
  touches().cancel();
  EXPECT_EQ(state().selected(), UISegmentedControl::noSegment);
}

TEST_F(UISegmentedControlTest, TheSelectedSegmentIsFilledUnderAWhiteTitle) {
  state().select(1);
  application().prepareFrame();
  RecordingCanvas canvas;
  state().drawContent(&canvas);
  ASSERT_FALSE(canvas.fills.empty());
  EXPECT_EQ(canvas.fills[0].rect, (CGRect{{100, 0}, {100, 29}}));
  EXPECT_EQ(canvas.fills[0].color, colors::tint);
  const auto colorOf = [&](NSUInteger index) {
    return UIColorState::valueOf(UILabel(control->subviews().at(index).get()).textColor());
  };
  EXPECT_EQ(colorOf(0), colors::tint);
  EXPECT_EQ(colorOf(1), colors::white);
}

TEST_F(UISegmentedControlTest, DoesNothingWhileDisabledOrEmpty) {
  control->setEnabled(false);
  tap(in(0));
  EXPECT_EQ(state().selected(), UISegmentedControl::noSegment);
  control->setEnabled(true);
  state().setTitles({});
  tap(in(0));
  EXPECT_EQ(state().selected(), UISegmentedControl::noSegment);
  RecordingCanvas canvas;
  state().drawContent(&canvas);
  EXPECT_THAT(canvas.fills, IsEmpty());
}

}  // namespace
}  // namespace desktop::uikit
