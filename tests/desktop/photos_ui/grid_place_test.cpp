// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/grid/grid_place.h"

#include "tests/desktop/photos_ui/grid_owner.h"

namespace desktop::photos_ui {
namespace {

constexpr CGFloat row = 94;                  // points, with what is between
constexpr CGFloat end = 25 * row - 1 - 667;  // of 100 items

class GridPlaceTest : public GridPartTest {};

TEST_F(GridPlaceTest, FindsTheFirstItemInSight) {
  EXPECT_FALSE(place().anchor()) << "nothing is on show";
  show(sampleList(100));
  scrollTo(10 * row + 30);
  const auto anchor = place().anchor();
  ASSERT_TRUE(anchor);
  EXPECT_EQ(anchor->index, 40U);
  EXPECT_EQ(anchor->y, -30);
}

TEST_F(GridPlaceTest, PutsAnItemBackWhereItWas) {
  show(sampleList(100));
  place().restore({.index = 48, .y = -20});
  EXPECT_EQ(offset(), 12 * row + 20);
  place().restore({.index = 100, .y = 0});
  EXPECT_EQ(offset(), 12 * row + 20) << "there is no such item";
  place().restore({.index = 99, .y = 0});
  EXPECT_EQ(offset(), end) << "not beyond the end";
}

TEST_F(GridPlaceTest, RevealsInTheMiddleWhatIsOutOfSight) {
  show(sampleList(100));
  place().reveal(20);
  EXPECT_EQ(offset(), 0) << "it is in sight";
  place().reveal(60);
  EXPECT_EQ(offset(), 15 * row + 46.5 - 333.5);
  place().reveal(100);
  EXPECT_EQ(offset(), 15 * row + 46.5 - 333.5) << "there is no such item";
}

TEST_F(GridPlaceTest, StaysAtTheEndUntilSomebodyScrollsAway) {
  place().setStartsAtEnd(true);
  place().stayAtEnd();
  show(sampleList(100));
  place().stayAtEnd();
  EXPECT_EQ(offset(), end);
  show(sampleList(104));
  place().restore({.index = 0, .y = 0});
  EXPECT_EQ(offset(), end) << "who is at the end is nowhere else";
  place().stayAtEnd();
  EXPECT_EQ(offset(), end + row);

  scrollTo(100);
  place().stayAtEnd();
  EXPECT_EQ(offset(), 100);
  scrollTo(end + row - 10);
  place().stayAtEnd();
  EXPECT_EQ(offset(), end + row) << "nearly there is there";
  place().reveal(0);
  place().stayAtEnd();
  EXPECT_LT(offset(), row) << "what is revealed stays in sight";
}

TEST_F(GridPlaceTest, FollowsNoEndWhereItStartsAtTheTop) {
  show(sampleList(100));
  scrollTo(end);
  place().stayAtEnd();
  show(sampleList(104));
  place().stayAtEnd();
  EXPECT_EQ(offset(), end);
}

}  // namespace
}  // namespace desktop::photos_ui
