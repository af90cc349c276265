// SPDX-License-Identifier: MIT
#include "desktop/uikit/touch/ui_gesture_recognizer.h"

#include <gmock/gmock.h>

#include "bridge/class_builder.h"
#include "bridge/runtime/fields.h"
#include "tests/desktop/uikit/touch_probes.h"

namespace desktop::uikit {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class UIGestureRecognizerTest : public TouchTest {
 protected:
  static void require(UIGestureRecognizer recognizer, UIGestureRecognizer other) {
    send<void, "requireGestureRecognizerToFail:">(recognizer, other);
  }

  Owned<UIView> box = probeIn(window(), {{100, 100}, {100, 100}});
  CGPoint inside{120, 120};
};

TEST_F(UIGestureRecognizerTest, OthersReadItsTargetsByName) {
  const SEL action = selector<"gesture:">();
  const auto press = UILongPressGestureRecognizer::make(probe, action);
  const auto targets = as<NSArray>(objectField(press, "_targets"));
  ASSERT_EQ(targets.count(), 1u);
  EXPECT_EQ(objectField(targets.at(0), "_target"), probe.get());
  EXPECT_TRUE(sameSelector(selectorField(targets.at(0), "_action"), action));
}

TEST_F(UIGestureRecognizerTest, ATargetIsThereOnce) {
  const SEL action = selector<"gesture:">();
  const auto press = UILongPressGestureRecognizer::make(probe, action);
  UIGestureRecognizerState& state = UIGestureRecognizerState::of(press.get());
  state.addTarget(probe, action);
  EXPECT_EQ(state.actions().size(), 1u);
  state.addTarget(probe, selector<"act">());
  state.addTarget({}, action);
  state.addTarget(probe, nullptr);
  EXPECT_EQ(state.actions().size(), 2u);
}

TEST_F(UIGestureRecognizerTest, NilTakesAwayAnyTarget) {
  const auto other = Probe::make();
  const SEL action = selector<"gesture:">();
  const auto press = UILongPressGestureRecognizer::make(probe, action);
  UIGestureRecognizerState& state = UIGestureRecognizerState::of(press.get());
  const auto remove = [&](NSObject target, SEL removed) {
    send<void, "removeTarget:action:">(press.get(), target, removed);
  };
  state.addTarget(other, action);
  remove(other, selector<"act">());
  EXPECT_EQ(state.actions().size(), 2u);
  remove(other, nullptr);
  EXPECT_EQ(state.actions().size(), 1u);
  remove({}, nullptr);
  EXPECT_THAT(state.actions(), IsEmpty());
  remove({}, nullptr);
}

TEST_F(UIGestureRecognizerTest, BelongsToOneView) {
  const auto other = probeIn(window(), {});
  const auto press = recognize<UILongPressGestureRecognizer>(box, probe);
  EXPECT_EQ((send<UIView, "view">(press.get())), box.get());
  other->addGestureRecognizer(press);
  EXPECT_EQ((send<UIView, "view">(press.get())), other.get());
  EXPECT_EQ(box->gestureRecognizers().count(), 0u);
  other->removeGestureRecognizer(press);
  EXPECT_FALSE((send<UIView, "view">(press.get())));
}

TEST_F(UIGestureRecognizerTest, OutlivesItsView) {
  auto view = ProbeView::make({});
  const auto press = recognize<UILongPressGestureRecognizer>(view, probe);
  view.reset();
  EXPECT_FALSE((send<UIView, "view">(press.get())));
  EXPECT_EQ(press->locationIn({}), CGPoint{});
}

TEST_F(UIGestureRecognizerTest, ActionsTakeNoArgumentsOrTheRecogniser) {
  const auto tapping = recognize<UITapGestureRecognizer>(box, probe);
  UIGestureRecognizerState::of(tapping.get()).addTarget(probe, selector<"act">());
  tap(inside);
  EXPECT_THAT(of(probe).told, ElementsAre("ended", "act"));
  EXPECT_EQ(of(probe).location, (CGPoint{20, 20}));
}

TEST_F(UIGestureRecognizerTest, ATargetTakenAwayByAnActionIsNotTold) {
  const auto other = Probe::make();
  const auto tapping = recognize<UITapGestureRecognizer>(box, probe);
  UIGestureRecognizerState::of(tapping.get()).addTarget(other, selector<"gesture:">());
  of(probe).onAction = [&] {
    send<void, "removeTarget:action:">(tapping.get(), other.get(), SEL{});
  };
  tap(inside);
  EXPECT_THAT(of(probe).told, ElementsAre("ended"));
  EXPECT_THAT(of(other).told, IsEmpty());
}

TEST_F(UIGestureRecognizerTest, IsPossibleAgainAfterTheTouch) {
  const auto press = recognize<UILongPressGestureRecognizer>(box, probe);
  touches().down(inside);
  wait(0.6);
  EXPECT_EQ(press->state(), UILongPressGestureRecognizer::began);
  EXPECT_EQ((send<NSUInteger, "numberOfTouches">(press.get())), 1u);
  touches().up(inside);
  EXPECT_EQ(press->state(), UILongPressGestureRecognizer::possible);
  EXPECT_EQ((send<NSUInteger, "numberOfTouches">(press.get())), 0u);
}

TEST_F(UIGestureRecognizerTest, ALongPressBeginsAtHalfASecond) {
  recognize<UILongPressGestureRecognizer>(box, probe);
  touches().down(inside);
  wait(0.499);
  EXPECT_THAT(of(probe).told, IsEmpty());
  wait(0.001);
  EXPECT_THAT(of(probe).told, ElementsAre("began"));
  touches().up(inside);
  EXPECT_THAT(of(probe).told, ElementsAre("began", "ended"));
}

TEST_F(UIGestureRecognizerTest, ALongPressBeginsExactlyInOneStep) {
  recognize<UILongPressGestureRecognizer>(box, probe);
  touches().down(inside);
  wait(0.5);
  EXPECT_THAT(of(probe).told, ElementsAre("began"));
}

TEST_F(UIGestureRecognizerTest, ALongPressAllowsTenPointsBeforeItBegins) {
  const struct {
    CGFloat distance;
    bool begins;
  } cases[] = {{9, true}, {10, true}, {11, false}};
  recognize<UILongPressGestureRecognizer>(box, probe);
  for (const auto& [distance, begins] : cases) {
    of(probe).told.clear();
    touches().down(inside);
    wait(0.1);
    touches().move({inside.x, inside.y + distance});
    wait(0.5);
    touches().up({inside.x, inside.y + distance});
    EXPECT_EQ(of(probe).told.size(), begins ? 2u : 0u) << distance;
  }
}

TEST_F(UIGestureRecognizerTest, ALongPressFollowsTheFingerOnceItHasBegun) {
  recognize<UILongPressGestureRecognizer>(box, probe);
  touches().down(inside);
  wait(0.5);
  touches().move({300, 300});
  touches().up({310, 310});
  EXPECT_THAT(of(probe).told, ElementsAre("began", "changed", "ended"));
  EXPECT_EQ(of(probe).location, (CGPoint{210, 210}));
}

TEST_F(UIGestureRecognizerTest, ALongPressIsCancelledWithItsTouch) {
  recognize<UILongPressGestureRecognizer>(box, probe);
  touches().down(inside);
  wait(0.5);
  touches().cancel();
  EXPECT_THAT(of(probe).told, ElementsAre("began", "cancelled"));
  touches().down(inside);
  wait(0.2);
  touches().cancel();
  wait(1);
  EXPECT_THAT(of(probe).told, ElementsAre("began", "cancelled"));
}

TEST_F(UIGestureRecognizerTest, ATapIsShortAndStays) {
  recognize<UITapGestureRecognizer>(box, probe);
  tap(inside, 0.7);
  EXPECT_THAT(of(probe).told, ElementsAre("ended"));
  tap(inside, 0.8);
  drag(inside, {inside.x + 50, inside.y}, 0.1);
  touches().down(inside);
  touches().cancel();
  EXPECT_THAT(of(probe).told, ElementsAre("ended"));
}

TEST_F(UIGestureRecognizerTest, TwoTapsFollowEachOtherSoon) {
  const auto twice = recognize<UITapGestureRecognizer>(box, probe);
  twice->setNumberOfTapsRequired(2);
  tap(inside);
  EXPECT_THAT(of(probe).told, IsEmpty());
  wait(0.1);
  tap(inside);
  EXPECT_THAT(of(probe).told, ElementsAre("ended"));
  tap(inside);
  wait(0.4);
  tap(inside);
  EXPECT_THAT(of(probe).told, ElementsAre("ended"));
}

TEST_F(UIGestureRecognizerTest, ATapCanWaitForTheFailureOfTwo) {
  const auto single = Probe::make();
  const auto once = recognize<UITapGestureRecognizer>(box, single);
  const auto twice = recognize<UITapGestureRecognizer>(box, probe);
  twice->setNumberOfTapsRequired(2);
  require(once, twice);

  tap(inside);
  wait(0.3);
  EXPECT_THAT(of(single).told, IsEmpty());
  wait(0.1);
  EXPECT_THAT(of(single).told, ElementsAre("ended"));

  wait(1);
  tap(inside);
  wait(0.1);
  tap(inside);
  wait(1);
  EXPECT_THAT(of(single).told, ElementsAre("ended"));
  EXPECT_THAT(of(probe).told, ElementsAre("ended"));
}

TEST_F(UIGestureRecognizerTest, WhoeverWaitsForAGestureFailsWithIt) {
  const auto panned = Probe::make();
  const auto pan = recognize<UIPanGestureRecognizer>(box, panned);
  const auto press = recognize<UILongPressGestureRecognizer>(box, probe);
  require(pan, press);
  touches().down(inside);
  wait(0.6);
  touches().move({150, 150});
  touches().up({150, 150});
  EXPECT_THAT(of(probe).told, ElementsAre("began", "changed", "ended"));
  EXPECT_THAT(of(panned).told, IsEmpty());
  drag(inside, {150, 150}, 0.1);
  EXPECT_EQ(of(panned).told.front(), "began");
}

TEST_F(UIGestureRecognizerTest, APanBeginsAfterTenPoints) {
  recognize<UIPanGestureRecognizer>(box, probe);
  touches().down(inside);
  touches().move({inside.x, inside.y + 9});
  EXPECT_THAT(of(probe).told, IsEmpty());
  touches().move({inside.x, inside.y + 11});
  EXPECT_THAT(of(probe).told, ElementsAre("began"));
  EXPECT_EQ(of(probe).translation, (CGPoint{0, 1}));
  touches().move({inside.x + 5, inside.y + 30});
  EXPECT_EQ(of(probe).translation, (CGPoint{5, 20}));
  touches().up({inside.x + 5, inside.y + 30});
  EXPECT_THAT(of(probe).told, ElementsAre("began", "changed", "ended"));
}

TEST_F(UIGestureRecognizerTest, ThePansWayCanBeCountedAnew) {
  const auto pan = recognize<UIPanGestureRecognizer>(box, probe);
  touches().down(inside);
  touches().move({inside.x, inside.y + 50});
  send<void, "setTranslation:inView:">(pan.get(), CGPoint{3, 4}, box.get());
  EXPECT_EQ(pan->translationIn(box), (CGPoint{3, 4}));
  touches().move({inside.x + 1, inside.y + 51});
  EXPECT_EQ(pan->translationIn(box), (CGPoint{4, 5}));
}

TEST_F(UIGestureRecognizerTest, APanHasTheVelocityOfTheLastMoment) {
  const auto pan = recognize<UIPanGestureRecognizer>(box, probe);
  CGPoint velocity;
  of(probe).onAction = [&] { velocity = pan->velocityIn(box); };
  drag({100, 150}, {200, 150}, 0.5);
  EXPECT_NEAR(velocity.x, 200, 1);
  EXPECT_NEAR(velocity.y, 0, 1);
  drag({100, 150}, {200, 150}, 0.5, 0.2);
  EXPECT_EQ(velocity, CGPoint{});
}

TEST_F(UIGestureRecognizerTest, TransformsApplyToWaysAndPlaces) {
  const auto pan = recognize<UIPanGestureRecognizer>(box, probe);
  box->setTransform(scaling(2, 2));
  touches().down({150, 150});
  touches().move({150, 180});
  EXPECT_EQ(of(probe).translation, (CGPoint{0, 10}));
  EXPECT_EQ(of(probe).location, (CGPoint{50, 65}));
}

TEST_F(UIGestureRecognizerTest, AClassBelowDecidesByItself) {
  struct Eager : public Bound<Eager, UIGestureRecognizer> {
    using Bound::Bound;
    void began(NSSet, UIEvent) {
      send<void, "setState:">(self(), NSInteger{UIGestureRecognizer::began});
    }
    static Class classObject() {
      static const Class made = ClassBuilder<Eager>("EagerRecognizer")
                                    .method<"touchesBegan:withEvent:", &Eager::began>()
                                    .build();
      return made;
    }
  };
  const auto eager =
      Owned<UIGestureRecognizer>::adopt(send<UIGestureRecognizer, "initWithTarget:action:">(
          send<id, "alloc">(Eager::classObject()), probe.get(), selector<"gesture:">()));
  box->addGestureRecognizer(eager);
  touches().down(inside);
  touches().up(inside);
  EXPECT_THAT(of(probe).told, ElementsAre("began", "cancelled"));
  EXPECT_THAT(of(box).touches, IsEmpty());
}

}  // namespace
}  // namespace desktop::uikit
