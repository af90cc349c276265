// SPDX-License-Identifier: MIT
//
// Each correction is there because Foundation, left alone, answers otherwise. Should a later
// version answer right, this says which correction may go.
#include <gtest/gtest.h>

#include <cstdlib>

#include "bridge/foundation.h"
#include "desktop/platform.h"
#include "tests/desktop/faces/foundation/answers.h"

namespace desktop::faces {
namespace {

TEST(StockFoundation, NeedsEachCorrection) {
  setenv("TZ", "Europe/Berlin", 1);
  const AutoreleasePool pool;
  const Class zones = classNamed<"NSTimeZone">();
  const auto berlin = send<id, "timeZoneWithName:">(zones, NSString::make("Europe/Berlin"));
  send<void, "setDefaultTimeZone:">(zones, berlin);
  for (const Answer& answer : answers())
    EXPECT_NE(answer.ask(), answer.expected) << answer.question;
}

}  // namespace
}  // namespace desktop::faces
