// SPDX-License-Identifier: MIT
#include "desktop/uikit/overlays/ui_menu_controller.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/base/screen.h"
#include "tests/desktop/uikit/controller_probes.h"

namespace desktop::uikit {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Takes commands: copy:, and says so.
class CommandView : public Bound<CommandView, UIView> {
 public:
  using Bound::Bound;
  static Class classObject() {
    static const Class made = ClassBuilder<CommandView>("CommandView")
                                  .method<"canBecomeFirstResponder", &CommandView::yes>()
                                  .method<"copy:", &CommandView::copy>()
                                  .build();
    return made;
  }
  Object copied;

 private:
  bool yes() const { return true; }
  void copy(Object sender) { copied = sender; }
};

class UIMenuControllerTest : public ControllerTest {
 protected:
  UIMenuControllerTest() : a(showRoot(ProbeController::make("A"))) {}

  static UIMenuControllerState& menu() { return UIMenuControllerState::shared(); }
  void show(CGRect target) {
    menu().show({{"Copy", [this] { chosen.push_back("Copy"); }},
                 {"Select All", [this] { chosen.push_back("Select All"); }}},
                target, [this] { ++hidden; });
  }

  const Owned<UIViewController> a;
  std::vector<std::string> chosen;
  int hidden = 0;
};

TEST_F(UIMenuControllerTest, ACommandHidesTheMenuAndRuns) {
  show({{100, 300}, {50, 20}});
  EXPECT_TRUE((send<bool, "isMenuVisible">(UIMenuControllerState::sharedMenuController())));
  EXPECT_THAT(menu().titles(), ElementsAre("Copy", "Select All"));
  tap("Select All");
  EXPECT_THAT(chosen, ElementsAre("Select All"));
  EXPECT_FALSE(menu().isVisible());
  EXPECT_THAT(menu().titles(), IsEmpty());
  EXPECT_EQ(hidden, 1);
  EXPECT_FALSE(isShown("Copy"));
}

TEST_F(UIMenuControllerTest, ATouchBesideItHidesItAndGoesOn) {
  const auto button = bridge::makeView<UIControl>({{0, 0}, {375, 100}});
  button->addTarget(a.get(), selector<"press:">(), touchUpInside);
  a->view().addSubview(button);
  show({{100, 300}, {50, 20}});
  tap({20, 50});
  EXPECT_FALSE(menu().isVisible());
  EXPECT_EQ(hidden, 1);
  EXPECT_THAT(chosen, IsEmpty());
  EXPECT_THAT(takeCalls(), ElementsAre("A pressed"));
}

TEST_F(UIMenuControllerTest, StandsAboveOrBelowItsTargetInsideTheScreen) {
  struct Case {
    CGRect target;
    CGRect frame;
  };
  // "Copy" and "Select All" are 60 and 110 points wide.
  constexpr Case cases[] = {
      {{{100, 300}, {50, 20}}, {{40, 255}, {170, 45}}},
      {{{0, 300}, {20, 20}}, {{8, 255}, {170, 45}}},
      {{{355, 300}, {20, 20}}, {{197, 255}, {170, 45}}},
      {{{100, 30}, {50, 20}}, {{40, 50}, {170, 45}}},
      {{{100, 0}, {50, 667}}, {{40, 20}, {170, 45}}},
  };
  for (const Case& each : cases) {
    show(each.target);
    EXPECT_THAT(numbers(menu().menuFrame()), testing::ElementsAreArray(numbers(each.frame)));
    EXPECT_EQ(UIMenuController(UIMenuControllerState::sharedMenuController()).menuFrame(),
              menu().menuFrame());
  }
  EXPECT_EQ(hidden, 4);
}

TEST_F(UIMenuControllerTest, StaysOnTheScreenWhateverItsTarget) {
  for (const CGRect target : {CGRect{{NAN, 0}, {10, 10}}, CGRect{{0, INFINITY}, {1, 1}},
                              CGRect{{-1e300, -1e300}, {1, 1}}, CGRect{{1e9, 1e9}, {-5, -5}}}) {
    show(target);
    const CGRect frame = menu().menuFrame();
    EXPECT_EQ(intersection(frame, rectOfSize(screen().size)), frame)
        << testing::PrintToString(numbers(target));
  }
}

TEST_F(UIMenuControllerTest, TheFrameIsKeptForWhoeverAsksAfterwards) {
  show({{100, 300}, {50, 20}});
  const CGRect frame = menu().menuFrame();
  tap("Copy");
  EXPECT_EQ(menu().menuFrame(), frame);
}

TEST_F(UIMenuControllerTest, ShowsWhatTheFirstResponderCanDo) {
  const auto view = Owned<UIView>::adopt(send<UIView, "initWithFrame:">(
      send<id, "alloc">(CommandView::classObject()), CGRect{{0, 200}, {100, 20}}));
  a->view().addSubview(view);
  send<bool, "becomeFirstResponder">(view.get());
  const auto shared = UIMenuControllerState::sharedMenuController();
  send<void, "setTargetRect:inView:">(shared, CGRect{{0, 0}, {100, 20}}, view.get());
  send<void, "setMenuVisible:animated:">(shared, true, true);
  EXPECT_THAT(menu().titles(), ElementsAre("Copy"));
  EXPECT_EQ(menu().menuFrame().origin.y, 155);
  tap("Copy");
  EXPECT_EQ(CommandView::of(view.get()).copied, shared);
}

TEST_F(UIMenuControllerTest, ThereIsNoMenuWithoutCommands) {
  menu().show({}, {{100, 300}, {50, 20}});
  EXPECT_FALSE(menu().isVisible());
  send<void, "setMenuVisible:animated:">(UIMenuControllerState::sharedMenuController(), true, true);
  EXPECT_FALSE(menu().isVisible());
}

TEST_F(UIMenuControllerTest, GoesWhenAnotherScreenComes) {
  show({{100, 300}, {50, 20}});
  a->present(ProbeController::make("B"), UIViewController::animated, {});
  EXPECT_FALSE(menu().isVisible());
  EXPECT_EQ(hidden, 1);
}

TEST_F(UIMenuControllerTest, NothingIsLeftOfItEvenWhereTheApplicationGoes) {
  const long before = liveBoundObjects();
  {
    const AutoreleasePool pool;
    show({{100, 300}, {50, 20}});
    tap("Copy");
  }
  EXPECT_EQ(liveBoundObjects(), before);
  show({{100, 300}, {50, 20}});
  resetApplication();
  EXPECT_FALSE(menu().isVisible());
}

}  // namespace
}  // namespace desktop::uikit
