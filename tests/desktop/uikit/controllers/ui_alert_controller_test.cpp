// SPDX-License-Identifier: MIT
#include "desktop/uikit/controllers/ui_alert_controller.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/uikit/application/application.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/scrolling/ui_scroll_view.h"
#include "tests/desktop/uikit/controller_probes.h"

namespace desktop::uikit {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using How = UIViewController::Animated;
constexpr How animated = UIViewController::animated;
constexpr How atOnce = UIViewController::immediately;

class UIAlertControllerTest : public ControllerTest {
 protected:
  UIAlertControllerTest() : a(showRoot(ProbeController::make("A"))) {}

  Owned<UIAlertController> alert(const char* title, const char* message,
                                 NSInteger style = UIAlertControllerState::alert) const {
    return Owned<UIAlertController>::retain(UIAlertController::make(
        title ? NSString::make(title) : NSString(), message ? NSString::make(message) : NSString(),
        static_cast<UIAlertController::Style>(style)));
  }
  static UIAlertAction action(const char* title, NSInteger style = 0) {
    return UIAlertAction::make(NSString::make(title), static_cast<UIAlertAction::Style>(style),
                               Block<void(UIAlertAction)>([title](UIAlertAction) {
                                 ProbeController::calls.push_back(std::string("chose ") + title);
                               }));
  }
  static std::vector<double> box(const Owned<UIAlertController>& alert) {
    application().prepareFrame();
    return onScreen(AlertView::of(alert->view().get()).box());
  }
  UIViewController presented() const {
    return send<UIViewController, "presentedViewController">(a.get());
  }

  const Owned<UIViewController> a;
};

TEST_F(UIAlertControllerTest, TellsThePresenterNothing) {
  const auto shown = alert("Erorr:", "Could not find it");
  shown->addAction(action("Ok", 1));
  a->present(shown, animated, {});
  wait(0.3);
  EXPECT_THAT(takeCalls(), IsEmpty());
  EXPECT_TRUE(UIViewState::of(a->view().get()).window());
  EXPECT_TRUE(isShown("Erorr:"));
  EXPECT_TRUE(isShown("Could not find it"));
}

TEST_F(UIAlertControllerTest, AnActionIsCalledWhenTheAlertHasGone) {
  const auto shown = alert("Title", "Message");
  shown->addAction(action("Ok"));
  a->present(shown, animated, {});
  wait(0.3);
  tap("Ok");
  EXPECT_THAT(takeCalls(), IsEmpty());
  wait(0.3);
  EXPECT_THAT(takeCalls(), ElementsAre("chose Ok"));
  EXPECT_FALSE(presented());
  EXPECT_FALSE(isShown("Ok"));
}

TEST_F(UIAlertControllerTest, AHandlerCanShowTheNextAlert) {
  const auto first = alert("First", nullptr);
  const auto second = alert("Second", nullptr);
  first->addAction(UIAlertAction::make(
      NSString::make("Next"), UIAlertAction::normal,
      Block<void(UIAlertAction)>([&](UIAlertAction) { a->present(second, animated, {}); })));
  a->present(first, atOnce, {});
  tap("Next");
  wait(0.6);
  EXPECT_TRUE(isShown("Second"));
  EXPECT_EQ(presented(), second.get());
}

TEST_F(UIAlertControllerTest, TheBoxIsAsHighAsItsTextAndButtons) {
  const auto shown = alert("Title", "Message");
  shown->addAction(action("Ok"));
  a->present(shown, atOnce, {});
  // 20 + 21 + 4 + 16 + 20 and a button of 44.
  EXPECT_THAT(box(shown), ElementsAre(52.5, 271, 270, 125));
}

TEST_F(UIAlertControllerTest, ATextIsLeftOutWhereItIsNilButNotWhereItIsEmpty) {
  const auto without = alert(nullptr, "Message");
  without->addAction(action("Ok"));
  a->present(without, atOnce, {});
  EXPECT_EQ(box(without)[3], 20 + 16 + 20 + 44);
  a->dismiss(atOnce, {});
  const auto empty = alert("", "Message");
  empty->addAction(action("Ok"));
  a->present(empty, atOnce, {});
  EXPECT_EQ(box(empty)[3], 20 + 21 + 4 + 16 + 20 + 44);
}

TEST_F(UIAlertControllerTest, TwoActionsStandSideBySideWithCancelFirst) {
  const auto shown = alert("Title", nullptr);
  shown->addAction(action("Ok"));
  shown->addAction(action("Cancel", 1));
  a->present(shown, atOnce, {});
  EXPECT_EQ(box(shown)[3], 20 + 21 + 20 + 44);
  EXPECT_LT(onScreen(viewWithText("Cancel"))[0], onScreen(viewWithText("Ok"))[0]);
  EXPECT_EQ(onScreen(viewWithText("Cancel"))[1], onScreen(viewWithText("Ok"))[1]);
  tap("Cancel");
  wait(0.3);
  EXPECT_THAT(takeCalls(), ElementsAre("chose Cancel"));
}

TEST_F(UIAlertControllerTest, ThreeActionsStandBelowEachOtherWithCancelLast) {
  const auto shown = alert("Title", nullptr);
  shown->addAction(action("Cancel", 1));
  shown->addAction(action("First"));
  shown->addAction(action("Second", 2));
  a->present(shown, atOnce, {});
  EXPECT_EQ(box(shown)[3], 20 + 21 + 20 + 3 * 44);
  EXPECT_LT(onScreen(viewWithText("First"))[1], onScreen(viewWithText("Second"))[1]);
  EXPECT_LT(onScreen(viewWithText("Second"))[1], onScreen(viewWithText("Cancel"))[1]);
}

TEST_F(UIAlertControllerTest, ALongMessageScrollsAndLeavesTheButtonsInReach) {
  std::string message;
  for (int line = 0; line < 200; ++line) message += "line of a long message\n";
  const auto shown = alert("Title", message.c_str());
  shown->addAction(action("Ok"));
  a->present(shown, atOnce, {});
  EXPECT_THAT(box(shown), ElementsAre(52.5, 24, 270, 619));
  tap("Ok");
  wait(0.3);
  EXPECT_THAT(takeCalls(), ElementsAre("chose Ok"));
}

TEST_F(UIAlertControllerTest, NothingBelowOrBesideItTakesTouches) {
  const auto button = bridge::makeView<UIControl>({{0, 0}, {375, 667}});
  button->addTarget(a.get(), selector<"press:">(), touchUpInside);
  a->view().addSubview(button);
  const auto shown = alert("Title", nullptr);
  shown->addAction(action("Ok", 1));
  a->present(shown, atOnce, {});
  tap({10, 100});
  wait(0.3);
  EXPECT_THAT(takeCalls(), IsEmpty());
  EXPECT_EQ(presented(), shown.get());
}

TEST_F(UIAlertControllerTest, ComesSmallerAndClearer) {
  const auto shown = alert("Title", nullptr);
  shown->addAction(action("Ok"));
  a->present(shown, animated, {});
  const auto box = AlertView::of(shown->view().get()).box();
  EXPECT_EQ(UIViewState::of(box.get()).shown().alpha, 0);
  EXPECT_DOUBLE_EQ(UIViewState::of(box.get()).shown().transform.a, 1.2);
  scheduler().advanceTo(scheduler().now() + 0.125);
  EXPECT_DOUBLE_EQ(UIViewState::of(box.get()).shown().alpha, 0.5);
  EXPECT_DOUBLE_EQ(UIViewState::of(box.get()).shown().transform.a, 1.1);
  wait(0.2);
  EXPECT_EQ(UIViewState::of(box.get()).shown().alpha, 1);
}

TEST_F(UIAlertControllerTest, ASheetStandsAtTheBottomAndIsCancelledBesideIt) {
  const auto sheet = alert("Title", nullptr, UIAlertControllerState::actionSheet);
  sheet->addAction(action("Delete", 2));
  sheet->addAction(action("Cancel", 1));
  a->present(sheet, animated, {});
  wait(0.5);
  EXPECT_EQ(box(sheet)[1] + box(sheet)[3], 667 - 8 - 57 - 8);
  tap({100, 100});
  wait(0.5);
  EXPECT_THAT(takeCalls(), ElementsAre("chose Cancel"));
  EXPECT_FALSE(presented());
}

TEST_F(UIAlertControllerTest, AnAlertWithoutAnythingIsShownAndDismissed) {
  const auto shown = alert(nullptr, nullptr);
  a->present(shown, animated, {});
  wait(0.3);
  EXPECT_EQ(presented(), shown.get());
  a->dismiss(animated, {});
  wait(0.3);
  EXPECT_FALSE(presented());
}

TEST_F(UIAlertControllerTest, NothingIsLeftOfIt) {
  const auto run = [&] {
    const AutoreleasePool pool;
    const auto shown = alert("Title", "Message");
    shown->addAction(action("Ok"));
    a->present(shown, animated, {});
    wait(0.3);
    tap("Ok");
    wait(0.3);
  };
  run();
  const long before = liveBoundObjects();
  run();
  EXPECT_EQ(liveBoundObjects(), before);
}

}  // namespace
}  // namespace desktop::uikit
