// SPDX-License-Identifier: MIT
#include "desktop/uikit/scrolling/scroll_drag.h"

#include <gtest/gtest.h>

namespace desktop::uikit {
namespace {

constexpr CGSize page = {100, 0};

ScrollDrag dragged(CGPoint way, CGPoint velocity, bool isLocked) {
  ScrollDrag drag;
  drag.begin({200, 0}, way, velocity, isLocked);
  return drag;
}

TEST(ScrollDrag, EndsOnce) {
  ScrollDrag drag;
  EXPECT_FALSE(drag.isUnderWay());
  EXPECT_FALSE(drag.end());
  drag.begin({3, 4}, {}, {}, false);
  EXPECT_TRUE(drag.isUnderWay());
  EXPECT_EQ(drag.start(), (CGPoint{3, 4}));
  EXPECT_TRUE(drag.end());
  EXPECT_FALSE(drag.end());
}

TEST(ScrollDrag, GoesWhereTheContentCan) {
  const ScrollDrag drag = dragged({5, 1}, {}, false);
  EXPECT_EQ(drag.along({7, 8}, true, true), (CGPoint{7, 8}));
  EXPECT_EQ(drag.along({7, 8}, true, false), (CGPoint{7, 0}));
  EXPECT_EQ(drag.along({7, 8}, false, true), (CGPoint{0, 8}));
}

TEST(ScrollDrag, ALockKeepsToTheWayThatTheFingerTook) {
  EXPECT_EQ(dragged({5, 1}, {}, true).along({7, 8}, true, true), (CGPoint{7, 0}));
  EXPECT_EQ(dragged({1, 5}, {}, true).along({7, 8}, true, true), (CGPoint{0, 8}));
  EXPECT_EQ(dragged({5, 1}, {0, 90}, true).along({7, 8}, true, true), (CGPoint{0, 8}));
}

TEST(ScrollDrag, TurnsOnePageAtMost) {
  const ScrollDrag drag = dragged({}, {}, false);
  struct Lift {
    CGFloat offset;
    CGFloat velocity;
    CGFloat page;
  };
  for (const auto& [offset, velocity, expected] :
       {Lift{240, 0, 200}, Lift{260, 0, 300}, Lift{210, 300, 300}, Lift{260, -300, 100},
        Lift{210, 150, 200}, Lift{580, 0, 300}, Lift{-90, 0, 100}})
    EXPECT_EQ(drag.pageNear({offset, 5}, {velocity, 0}, page), (CGPoint{expected, 5}))
        << offset << ", " << velocity;
}

TEST(ScrollDrag, WithoutADragPagesCountFromWhereTheFingerLetGo) {
  ScrollDrag drag;
  drag.letGoAt({740, 0});
  EXPECT_EQ(drag.pageNear({740, 0}, {}, page), (CGPoint{700, 0}));
  EXPECT_FALSE(drag.isUnderWay());
}

}  // namespace
}  // namespace desktop::uikit
