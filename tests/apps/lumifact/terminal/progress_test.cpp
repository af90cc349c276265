// SPDX-License-Identifier: MIT
#include "apps/lumifact/terminal/progress.h"

#include <gtest/gtest.h>

namespace lumifact::tool {
namespace {

TEST(Progress, DrawsABarAndTheNumbers) {
  EXPECT_EQ(progressLine(0, 100, Colour::none), "[------------------------] 0 of 100 files");
  EXPECT_EQ(progressLine(50, 100, Colour::none), "[############------------] 50 of 100 files");
  EXPECT_EQ(progressLine(100, 100, Colour::none), "[########################] 100 of 100 files");
  EXPECT_EQ(progressLine(0, 0, Colour::none), "[------------------------] 0 of 0 files");
}

TEST(Progress, ColoursTheBarOnly) {
  EXPECT_EQ(progressLine(1, 24, Colour::green),
            "[\x1b[32m#\x1b[0m-----------------------] 1 of 24 files");
}

}  // namespace
}  // namespace lumifact::tool
