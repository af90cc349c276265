// SPDX-License-Identifier: MIT
#include "desktop/uikit/views/view_gestures.h"

#include <gtest/gtest.h>

#include "tests/desktop/uikit/application_test.h"

namespace desktop::uikit {
namespace {

class ViewGesturesTest : public ApplicationTest {
 protected:
  ViewGesturesTest() {
    view = bridge::makeView<UIView>({});
    recognizer = makeNew<UIGestureRecognizer>(classNamed<"UITapGestureRecognizer">());
  }

  Owned<UIView> view;
  Owned<UIGestureRecognizer> recognizer;
};

TEST_F(ViewGesturesTest, ARecognizerKnowsItsView) {
  ViewGestures gestures;
  gestures.add(recognizer, view);
  ASSERT_EQ(gestures.all().size(), 1u);
  EXPECT_EQ(recognizer->view(), view.get());
  gestures.remove(recognizer);
  EXPECT_TRUE(gestures.all().empty());
  EXPECT_FALSE(recognizer->view());
}

TEST_F(ViewGesturesTest, WhatIsNotAmongThemStaysWhereItIs) {
  ViewGestures gestures;
  ViewGestures others;
  gestures.add(UIGestureRecognizer(), view);
  EXPECT_TRUE(gestures.all().empty());
  others.add(recognizer, view);
  gestures.remove(recognizer);
  EXPECT_EQ(recognizer->view(), view.get());
}

TEST_F(ViewGesturesTest, ARecognizerIsTakenFromTheViewThatHadIt) {
  view->addGestureRecognizer(recognizer);
  const auto other = bridge::makeView<UIView>({});
  other->addGestureRecognizer(recognizer);
  EXPECT_EQ(recognizer->view(), other.get());
  EXPECT_EQ(view->gestureRecognizers().count(), 0u);
  EXPECT_EQ(other->gestureRecognizers().count(), 1u);
}

TEST_F(ViewGesturesTest, TheirViewMayGo) {
  {
    ViewGestures gestures;
    gestures.add(recognizer, view);
  }
  EXPECT_FALSE(recognizer->view());
}

}  // namespace
}  // namespace desktop::uikit
