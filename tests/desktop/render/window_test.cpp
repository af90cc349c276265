// SPDX-License-Identifier: MIT
#include "desktop/render/window.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QMouseEvent>

#include "bridge/class_builder.h"
#include "tests/desktop/uikit/application_test.h"

namespace desktop::render {
namespace {

using testing::ElementsAre;

// Writes down the states of a recogniser, and where it is.
class Follower : public Bound<Follower, NSObject> {
 public:
  using Bound::Bound;
  static Class classObject() {
    static const Class made =
        ClassBuilder<Follower>("WindowTestFollower").method<"follow:", &Follower::follow>().build();
    return made;
  }
  std::vector<NSInteger> states;
  CGPoint place;

 private:
  void follow(UIGestureRecognizer recognizer) {
    states.push_back(recognizer.state());
    place = recognizer.locationIn({});
  }
};

class WindowTest : public uikit::ApplicationTest {
 protected:
  WindowTest() {
    const auto recognizer =
        UILongPressGestureRecognizer::make(follower.get(), selector<"follow:">());
    window().addGestureRecognizer(recognizer.get());
  }
  void press(Qt::MouseButton button, QPointF at) {
    QMouseEvent event(QEvent::MouseButtonPress, at, at, button, button, Qt::NoModifier);
    QCoreApplication::sendEvent(&qtWindow, &event);
  }
  void release(Qt::MouseButton button, QPointF at) {
    QMouseEvent event(QEvent::MouseButtonRelease, at, at, button, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&qtWindow, &event);
  }
  const Follower& told() const { return Follower::of(follower.get()); }

  Window qtWindow;
  Owned<NSObject> follower = makeNew<NSObject>(Follower::classObject());
};

TEST_F(WindowTest, TheRightButtonIsALongPressHoweverShortItIsHeld) {
  press(Qt::RightButton, {120, 200});
  release(Qt::RightButton, {120, 200});
  uikit::application().advance(1);
  EXPECT_THAT(told().states, ElementsAre(UIGestureRecognizer::began, UIGestureRecognizer::ended));
  EXPECT_EQ(told().place.x, 120);
  EXPECT_EQ(told().place.y, 200);
}

TEST_F(WindowTest, TheLeftButtonIsOneOnlyWhileItIsHeld) {
  press(Qt::LeftButton, {120, 200});
  uikit::application().advance(0.2);
  release(Qt::LeftButton, {120, 200});
  uikit::application().advance(1);
  EXPECT_THAT(told().states, testing::IsEmpty());
  press(Qt::LeftButton, {120, 200});
  uikit::application().advance(1);
  EXPECT_THAT(told().states, ElementsAre(UIGestureRecognizer::began));
  release(Qt::LeftButton, {120, 200});
}

TEST_F(WindowTest, TheMiddleButtonIsForWhoeverAsksForIt) {
  std::vector<CGPoint> pressed;
  press(Qt::MiddleButton, {120, 200});
  qtWindow.middlePressed = [&](CGPoint at) { pressed.push_back(at); };
  press(Qt::MiddleButton, {120, 200});
  EXPECT_THAT(pressed, ElementsAre(CGPoint{120, 200}));
}

}  // namespace
}  // namespace desktop::render
