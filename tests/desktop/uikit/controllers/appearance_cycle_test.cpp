// SPDX-License-Identifier: MIT
#include "desktop/uikit/controllers/appearance_cycle.h"

#include <gtest/gtest.h>

namespace desktop::uikit {
namespace {

using Stage = AppearanceCycle::Stage;

TEST(AppearanceCycle, AViewComesAndGoes) {
  AppearanceCycle cycle;
  EXPECT_EQ(cycle.stage(), Stage::gone);
  EXPECT_TRUE(cycle.begin(true, true));
  EXPECT_EQ(cycle.stage(), Stage::appearing);
  EXPECT_TRUE(cycle.isAnimated());
  EXPECT_EQ(cycle.end(), std::optional(true));
  EXPECT_EQ(cycle.stage(), Stage::shown);
  EXPECT_TRUE(cycle.begin(false, false));
  EXPECT_EQ(cycle.stage(), Stage::disappearing);
  EXPECT_FALSE(cycle.isAnimated());
  EXPECT_EQ(cycle.end(), std::optional(false));
  EXPECT_EQ(cycle.stage(), Stage::gone);
}

TEST(AppearanceCycle, NothingBeginsTwice) {
  AppearanceCycle cycle;
  EXPECT_FALSE(cycle.begin(false, true));
  cycle.begin(true, true);
  EXPECT_FALSE(cycle.begin(true, false));
  EXPECT_TRUE(cycle.isAnimated());
  cycle.end();
  EXPECT_FALSE(cycle.begin(true, false));
}

TEST(AppearanceCycle, NothingEndsThatDidNotBegin) {
  AppearanceCycle cycle;
  EXPECT_EQ(cycle.end(), std::nullopt);
  cycle.begin(true, false);
  cycle.end();
  EXPECT_EQ(cycle.end(), std::nullopt);
}

TEST(AppearanceCycle, WhatComesMayTurnBack) {
  AppearanceCycle cycle;
  cycle.begin(true, true);
  EXPECT_TRUE(cycle.isThereOrComing());
  EXPECT_TRUE(cycle.begin(false, true));
  EXPECT_FALSE(cycle.isThereOrComing());
  EXPECT_EQ(cycle.end(), std::optional(false));
}

}  // namespace
}  // namespace desktop::uikit
