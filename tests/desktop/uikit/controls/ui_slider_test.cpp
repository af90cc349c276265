// SPDX-License-Identifier: MIT
#include "desktop/uikit/controls/ui_slider.h"

#include <gmock/gmock.h>

#include <limits>

#include "desktop/uikit/scrolling/ui_scroll_view.h"
#include "tests/desktop/uikit/recording_canvas.h"
#include "tests/desktop/uikit/touch_probes.h"

namespace desktop::uikit {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class UISliderTest : public TouchTest {
 protected:
  // The knob's middle goes from 100 to 300.
  UISliderTest() {
    control->setFrame({{86, 100}, {228, 31}});
    window().addSubview(control);
    state().addTarget(probe, selector<"act">(), UIControlState::valueChanged);
  }
  UISlider& state() { return UISlider::of(control.get()); }

  Owned<UIControl> control = UISlider::make();
  CGFloat y = 115.5;
};

TEST_F(UISliderTest, KeepsItsValueBetweenItsEnds) {
  EXPECT_EQ(state().value(), 0);
  state().setMaximumValue(20);
  state().setValue(30);
  EXPECT_EQ(state().value(), 20);
  state().setValue(-1);
  EXPECT_EQ(state().value(), 0);
  state().setMinimumValue(5);
  EXPECT_EQ(state().value(), 5);
  state().setValue(std::numeric_limits<float>::quiet_NaN());
  EXPECT_EQ(state().value(), 5);
  state().setMinimumValue(25);
  EXPECT_EQ(state().maximumValue(), 25);
  state().setMaximumValue(-3);
  EXPECT_EQ(state().minimumValue(), -3);
  EXPECT_EQ(state().value(), -3);
  EXPECT_THAT(of(probe).told, IsEmpty());
}

TEST_F(UISliderTest, TheKnobStandsWhereTheValueIs) {
  EXPECT_EQ(state().knob(), (CGPoint{14, 15.5}));
  state().setValue(0.5);
  EXPECT_EQ(state().knob(), (CGPoint{114, 15.5}));
  EXPECT_EQ(state().knobAt(1), (CGPoint{214, 15.5}));
}

TEST_F(UISliderTest, FollowsAFingerThatCameDownOnItsKnob) {
  touches().down({105, y});
  touches().move({155, y});
  EXPECT_FLOAT_EQ(state().value(), 0.25F);
  touches().move({405, y});
  EXPECT_EQ(state().value(), 1);
  touches().move({205, y + 200});
  EXPECT_FLOAT_EQ(state().value(), 0.5F);
  touches().up({205, y + 200});
  EXPECT_FLOAT_EQ(state().value(), 0.5F);
  EXPECT_THAT(of(probe).told, ElementsAre("act", "act", "act"));
}

TEST_F(UISliderTest, AFingerBesideItsKnobDoesNothing) {
  drag({200, y}, {300, y}, 0.2);
  tap({300, y});
  EXPECT_EQ(state().value(), 0);
  EXPECT_THAT(of(probe).told, IsEmpty());
}

TEST_F(UISliderTest, OneThatIsNotContinuousTellsAtTheEnd) {
  send<void, "setContinuous:">(control.get(), false);
  touches().down({100, y});
  touches().move({150, y});
  touches().move({200, y});
  EXPECT_THAT(of(probe).told, IsEmpty());
  touches().up({200, y});
  EXPECT_THAT(of(probe).told, ElementsAre("act"));
}

TEST_F(UISliderTest, DoesNothingWhileDisabled) {
  control->setEnabled(false);
  drag({100, y}, {200, y}, 0.2);
  EXPECT_EQ(state().value(), 0);
}

TEST_F(UISliderTest, ContentThatScrollsDoesNotTakeItsFingerAway) {
  const auto scroll = bridge::makeView<UIScrollView>({{0, 0}, {375, 300}});
  scroll->setContentSize({375, 2000});
  window().addSubview(scroll);
  scroll->addSubview(control);
  touches().down({100, y});
  wait(0.2);
  touches().move({150, y + 100});
  touches().move({200, y + 150});
  touches().up({200, y + 150});
  EXPECT_FLOAT_EQ(state().value(), 0.5F);
  EXPECT_EQ(scroll->contentOffset(), (CGPoint{0, 0}));
  drag({350, y}, {350, y - 50}, 0.1);
  EXPECT_GT(scroll->contentOffset().y, 0) << "beside the slider a finger scrolls";
}

TEST_F(UISliderTest, PaintsWhatIsBeforeAndBehindItsKnob) {
  state().setValue(0.5);
  RecordingCanvas canvas;
  state().drawContent(&canvas);
  ASSERT_THAT(canvas.fills, SizeIs(3));
  EXPECT_EQ(canvas.fills[0].color, colors::tint);
  EXPECT_EQ(canvas.fills[0].rect.size.width, 114);
  EXPECT_EQ(canvas.fills[1].rect.size.width, 114);
  EXPECT_EQ(canvas.fills[2].rect, (CGRect{{100, 1.5}, {28, 28}}));
}

}  // namespace
}  // namespace desktop::uikit
