// SPDX-License-Identifier: MIT
#include "samples/metadata/date_text.h"

#include <gtest/gtest.h>

namespace samples {
namespace {

constexpr model::CivilTime time{2019, 2, 3, 4, 5, 6};

TEST(DateText, FollowsEachFormat) {
  EXPECT_EQ(exifTime(time), "2019:02:03 04:05:06");
  EXPECT_EQ(dateText(time, ""), "20190203");
  EXPECT_EQ(clockText(time, ""), "040506");
  EXPECT_EQ(isoTime(time, 120, ":"), "2019-02-03T04:05:06+02:00");
  EXPECT_EQ(isoTime(time, -210, ""), "2019-02-03T04:05:06-0330");
  EXPECT_EQ(threeDigits(7), "007");
}

}  // namespace
}  // namespace samples
