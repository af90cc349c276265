// SPDX-License-Identifier: MIT
#include "desktop/uikit/controllers/presentation.h"

#include <gtest/gtest.h>

#include "tests/desktop/uikit/controller_probes.h"

namespace desktop::uikit {
namespace {

// Parts beside the ones that the controllers have themselves.
class PresentationTest : public ControllerTest {
 protected:
  PresentationTest() {
    showRoot(first);
    takeCalls();
  }

  Owned<UIViewController> first = ProbeController::make("A");
  Owned<UIViewController> second = ProbeController::make("B");
  Owned<UIViewController> third = ProbeController::make("C");
  Presentation top{third};  // whoever presents goes before who is presented
  Presentation middle{second};
  Presentation bottom{first};
};

TEST_F(PresentationTest, KnowsWhoIsAboveAndWhoIsBelow) {
  EXPECT_FALSE(bottom.presented());
  bottom.present(middle, false, {});
  middle.present(top, false, {});
  EXPECT_EQ(bottom.presented(), second.get());
  EXPECT_EQ(middle.presenting(), first.get());
  EXPECT_EQ(middle.presented(), third.get());
  EXPECT_FALSE(top.presented());
}

TEST_F(PresentationTest, IsInTransitionUntilTheViewsStandStill) {
  bottom.present(middle, true, {});
  EXPECT_TRUE(bottom.isInTransition());
  EXPECT_TRUE(middle.isBeingPresented());
  EXPECT_FALSE(middle.isBeingDismissed());
  wait(0.5);
  EXPECT_FALSE(bottom.isInTransition());
  EXPECT_FALSE(middle.isBeingPresented());
  middle.dismiss(true, {});
  EXPECT_TRUE(middle.isBeingDismissed());
  wait(0.5);
  EXPECT_FALSE(bottom.presented());
  EXPECT_FALSE(middle.presenting());
}

TEST_F(PresentationTest, EverythingAboveGoesTogether) {
  bottom.present(middle, false, {});
  middle.present(top, false, {});
  takeCalls();
  bottom.dismiss(false, {});
  EXPECT_FALSE(bottom.presented());
  EXPECT_FALSE(middle.presented());
  EXPECT_FALSE(middle.presenting());
  EXPECT_FALSE(top.presenting());
  EXPECT_EQ(takeCalls(),
            (Calls{"C willDisappear", "A willAppear", "A didAppear", "C didDisappear"}));
}

TEST_F(PresentationTest, DismissingDuringATransitionIsRefused) {
  bottom.present(middle, true, {});
  bottom.dismiss(false, {});
  EXPECT_EQ(bottom.presented(), second.get());
  wait(0.5);
  EXPECT_EQ(bottom.presented(), second.get());
}

TEST_F(PresentationTest, WhatIsPresentedIsLetGoWithItsPresenter) {
  {
    Presentation other{first};
    other.present(middle, false, {});
    EXPECT_TRUE(middle.presenting());
  }
  EXPECT_FALSE(middle.presenting());
  EXPECT_FALSE(UIViewState::of(second->view().get()).window());
}

}  // namespace
}  // namespace desktop::uikit
