// SPDX-License-Identifier: MIT
#include "desktop/uikit/views/autoresizing.h"

#include <gtest/gtest.h>

#include "desktop/uikit/base/geometry.h"

namespace desktop::uikit {
namespace {

struct Mask {
  enum : NSUInteger { left = 1, width = 2, right = 4, top = 8, height = 16, bottom = 32 };
};

// 10 points before it, 60 of it, 30 behind it, across and down.
constexpr CGRect oldFrame{{10, 10}, {60, 60}};
constexpr CGSize oldSize{100, 100};

TEST(Autoresizing, WithoutAMaskNothingFollows) {
  EXPECT_EQ(autoresized(oldFrame, 0, oldSize, {200, 300}), oldFrame);
}

TEST(Autoresizing, WhatIsGainedGoesToTheFlexibleParts) {
  struct Row {
    NSUInteger mask;
    CGRect frame;
  };
  for (const auto& [mask, resized] :
       {Row{Mask::left, {{110, 10}, {60, 60}}}, Row{Mask::width, {{10, 10}, {160, 60}}},
        Row{Mask::right, {{10, 10}, {60, 60}}}, Row{Mask::top, {{10, 210}, {60, 60}}},
        Row{Mask::height, {{10, 10}, {60, 260}}}, Row{Mask::bottom, {{10, 10}, {60, 60}}},
        Row{Mask::width | Mask::height, {{10, 10}, {160, 260}}}})
    EXPECT_EQ(autoresized(oldFrame, mask, oldSize, {200, 300}), resized) << mask;
}

TEST(Autoresizing, SeveralPartsShareInProportionToWhatTheyHad) {
  EXPECT_EQ(autoresized(oldFrame, Mask::left | Mask::right, oldSize, {140, 100}),
            (CGRect{{20, 10}, {60, 60}}));
  EXPECT_EQ(autoresized(oldFrame, Mask::left | Mask::width | Mask::right, oldSize, {200, 100}),
            (CGRect{{20, 10}, {120, 60}}));
  EXPECT_EQ(autoresized(oldFrame, Mask::top | Mask::bottom, oldSize, {100, 60}),
            (CGRect{{10, 0}, {60, 60}}));
}

TEST(Autoresizing, PartsOfNoLengthShareEvenly) {
  const CGRect whole{{0, 0}, oldSize};
  EXPECT_EQ(autoresized(whole, Mask::left | Mask::right, oldSize, {140, 100}),
            (CGRect{{20, 0}, {100, 100}}));
}

TEST(Autoresizing, NothingGetsSmallerThanNothing) {
  EXPECT_EQ(autoresized(oldFrame, Mask::width, oldSize, {10, 100}), (CGRect{{10, 10}, {0, 60}}));
}

}  // namespace
}  // namespace desktop::uikit
