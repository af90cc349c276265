// SPDX-License-Identifier: MIT
#include "desktop/uikit/base/missing_messages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "bridge/log.h"
#include "bridge/quartz.h"
#include "desktop/runtime/debug_log.h"
#include "desktop/uikit/base/platform_log.h"
#include "tests/desktop/uikit/controller_probes.h"

namespace desktop::uikit {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using MissingMessagesTest = ControllerTest;

TEST_F(MissingMessagesTest, AnswerZeroOfEveryKind) {
  const auto view = bridge::makeView<UIView>({{1, 2}, {3, 4}});
  EXPECT_EQ((send<NSInteger, "missingInteger">(view.get())), 0);
  EXPECT_EQ((send<double, "missingReal">(view.get())), 0);
  EXPECT_FALSE((send<bool, "missingFlag">(view.get())));
  EXPECT_FALSE((send<Object, "missingObject:">(view.get(), CGFloat{7})));
  EXPECT_EQ((send<CGPoint, "missingPoint">(view.get())), CGPoint{});
  EXPECT_EQ((send<CGRect, "missingRect:">(view.get(), CGRect{{1, 2}, {3, 4}})), CGRect{});
  EXPECT_EQ((send<CGAffineTransform, "missingTransform">(view.get())).a, 1);
  send<void, "missingNothing">(view.get());
  EXPECT_EQ(platformLog().size(), 8u);
}

TEST_F(MissingMessagesTest, AreLoggedOnceWithClassAndSelector) {
  const auto a = ProbeController::make("A");
  for (int time = 0; time < 3; ++time) send<void, "setMissing:">(a.get(), NSInteger{1});
  send<Object, "missingColor">(UIColor::classObject());
  send<void, "missing">(UIScreen::mainScreen());
  EXPECT_THAT(platformLog(),
              ElementsAre("Missing: -[ProbeController setMissing:]",
                          "Missing: +[UIColor missingColor]", "Missing: -[UIScreen missing]"));
}

// A host gathers the debug log in the platform's, beside UIKit's own lines.
TEST_F(MissingMessagesTest, StandOnceBesideTheDebugLog) {
  const auto before = runtime::setDebugLogSink(
      [](const runtime::DebugLogLine& line) { platformLog().push_back(line.text); });
  send<void, "missing">(UIScreen::mainScreen());
  logDebug("Extension", 7, "an extension's line");
  runtime::setDebugLogSink(before);
  EXPECT_THAT(platformLog(), ElementsAre("Missing: -[UIScreen missing]", "an extension's line"));
}

TEST_F(MissingMessagesTest, WhatIsMissingIsNotSaidToBeThere) {
  const auto view = bridge::makeView<UIView>({});
  EXPECT_FALSE((respondsTo<"missingRect:">(view.get())));
  EXPECT_FALSE((respondsTo<"missingRect:">(view.get())));
  EXPECT_TRUE((respondsTo<"frame">(view.get())));
  EXPECT_THAT(platformLog(), IsEmpty());
}

TEST_F(MissingMessagesTest, ASuperclassThatAnswersNothingIsLoggedToo) {
  const auto a = ProbeController::make("A");
  superSend<void, "press:">(a.get(), UIViewController::classObject(), Object());
  EXPECT_THAT(platformLog(), ElementsAre("Missing: to super: press:"));
}

TEST_F(MissingMessagesTest, OtherObjectsStillRaise) {
  const auto text = NSString::make("text");
  EXPECT_ANY_THROW((send<void, "missing">(text)));
  EXPECT_ANY_THROW((send<CGRect, "missingRect">(text)));
  EXPECT_THAT(platformLog(), IsEmpty());
}

}  // namespace
}  // namespace desktop::uikit
