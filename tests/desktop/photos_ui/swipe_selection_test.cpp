// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/grid/swipe_selection.h"

#include <gmock/gmock.h>

#include <vector>

namespace desktop::photos_ui {
namespace {

using Items = std::set<std::size_t>;

// What is selected after a swipe over items.
Items afterSwipe(Items selected, const std::vector<std::size_t>& way) {
  SwipeSelection swipe(way.front(), selected);
  for (const std::size_t each : way)
    swipe.goTo(each, [&](std::size_t index, bool isSelected) {
      if (isSelected)
        selected.insert(index);
      else
        selected.erase(index);
    });
  return selected;
}

TEST(SwipeSelection, MakesAllItemsAsSelectedAsTheFirstOneBecame) {
  const struct {
    const char* what;
    Items before;
    std::vector<std::size_t> way;
    Items after;
  } rows[] = {
      {"a touch", {}, {4}, {4}},
      {"forwards", {}, {4, 7}, {4, 5, 6, 7}},
      {"backwards", {}, {4, 2}, {2, 3, 4}},
      {"over selected ones", {5, 9}, {4, 7}, {4, 5, 6, 7, 9}},
      {"from a selected one", {4, 5, 9}, {4, 7}, {9}},
      {"back again", {5}, {4, 7, 5}, {4, 5}},
      {"to the other side", {5, 2}, {4, 7, 3}, {2, 3, 4, 5}},
      {"from a selected one and back", {4, 5, 6}, {4, 6, 4}, {5, 6}},
  };
  for (const auto& row : rows) EXPECT_EQ(afterSwipe(row.before, row.way), row.after) << row.what;
}

TEST(SwipeSelection, LeavesAllAsItWasWhenUndone) {
  const Items before = {2, 5};
  for (const std::size_t first : {3U, 5U}) {
    Items selected = before;
    const SwipeSelection::Select select = [&](std::size_t index, bool isSelected) {
      if (isSelected)
        selected.insert(index);
      else
        selected.erase(index);
    };
    SwipeSelection swipe(first, before);
    for (const std::size_t each : {first, std::size_t{8}, std::size_t{1}}) swipe.goTo(each, select);
    EXPECT_NE(selected, before);
    swipe.undo(select);
    EXPECT_EQ(selected, before) << first;
  }
}

}  // namespace
}  // namespace desktop::photos_ui
