// SPDX-License-Identifier: MIT
#include "desktop/uikit/scrolling/scroll_target.h"

#include <gtest/gtest.h>

namespace desktop::uikit {
namespace {

struct Target {
  CGFloat start;
  CGFloat length;
  ShownAt where;
  CGFloat expected;
};

TEST(ScrollTarget, APartIsShownWhereItIsAsked) {
  const Sight sight = {.offset = 500, .length = 100, .coveredBefore = 20, .coveredAfter = 10};
  for (const auto& [start, length, where, expected] : {
           Target{300, 40, ShownAt::start, 280},
           Target{300, 40, ShownAt::end, 250},
           Target{300, 40, ShownAt::middle, 265},
           Target{300, 40, ShownAt::nearest, 280},  // from below
           Target{900, 40, ShownAt::nearest, 850},  // from above
           Target{530, 40, ShownAt::nearest, 500},  // is in sight
           Target{400, 300, ShownAt::nearest, 610},
       })
    EXPECT_EQ(offsetShowing(start, length, sight, where), expected)
        << start << ", " << length << ", " << static_cast<int>(where);
}

}  // namespace
}  // namespace desktop::uikit
