// SPDX-License-Identifier: MIT
#include "lumifact/views/hanging_text.h"

#include <gtest/gtest.h>

namespace lumifact {
namespace {

TEST(HangingText, IndentsInProportionToTheFontInSinglePrecision) {
  EXPECT_EQ(headIndentFor(12), 22.0F);
  EXPECT_EQ(headIndentFor(10), 10.0F / 12.0F * 22.0F);
  EXPECT_NEAR(headIndentFor(10), 18.333, 0.001);
  EXPECT_NEAR(headIndentFor(14), 25.666, 0.001);
  EXPECT_EQ(headIndentFor(0), 0.0F);
  EXPECT_EQ(headIndentFor(-12), -22.0F);
}

}  // namespace
}  // namespace lumifact
