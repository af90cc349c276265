// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/item_selection.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace desktop::uikit {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A selection, and what was shown and told of it.
class ItemSelectionTest : public testing::Test {
 protected:
  // Says yes, but for one item.
  struct Delegate {
    std::vector<std::string>& events;
    NSInteger forbidden;
    bool shouldSelect(ItemPath path) const { return path.item != forbidden; }
    bool shouldDeselect(ItemPath path) const { return path.item != forbidden; }
    void didSelect(ItemPath path) const { events.push_back("told +" + std::to_string(path.item)); }
    void didDeselect(ItemPath path) const {
      events.push_back("told -" + std::to_string(path.item));
    }
  };

  void select(std::initializer_list<ItemPath> paths) {
    for (const ItemPath path : paths) selection.set(path, true);
    events.clear();
  }
  void tap(NSInteger item, NSInteger forbidden = -1) {
    events.clear();
    selection.tap({0, item}, Delegate{events, forbidden},
                  [](ItemPath path) { return path.item < 100; });
  }

  std::vector<std::string> events;
  ItemSelection selection{[this](ItemPath path, bool isSelected) {
    events.push_back((isSelected ? "+" : "-") + std::to_string(path.item));
  }};
};

TEST_F(ItemSelectionTest, OnlyChangesAreShown) {
  selection.set({0, 1}, false);
  EXPECT_THAT(events, IsEmpty());
  selection.set({0, 1}, true);
  selection.set({0, 1}, true);
  EXPECT_TRUE(selection.contains({0, 1}));
  selection.set({0, 1}, false);
  EXPECT_THAT(events, ElementsAre("+1", "-1"));
  EXPECT_THAT(selection.paths(), IsEmpty());
}

TEST_F(ItemSelectionTest, OneIsSelectedInsteadOfAnother) {
  tap(1);
  EXPECT_THAT(events, ElementsAre("+1", "told +1"));
  tap(2);
  EXPECT_THAT(events, ElementsAre("-1", "told -1", "+2", "told +2"));
  tap(2);
  EXPECT_THAT(events, ElementsAre("told +2"));
}

TEST_F(ItemSelectionTest, OneOfManyIsDeselectedByTheNextTap) {
  selection.allowMultiple(true);
  tap(1);
  tap(2);
  tap(1);
  EXPECT_THAT(events, ElementsAre("-1", "told -1"));
  EXPECT_THAT(selection.paths(), ElementsAre(ItemPath{0, 2}));
}

TEST_F(ItemSelectionTest, TheDelegateMayForbidIt) {
  tap(3, 3);
  EXPECT_THAT(events, IsEmpty());
  tap(3);
  tap(4, 3);
  EXPECT_THAT(events, ElementsAre("+4", "told +4"));
  EXPECT_THAT(selection.paths(), ElementsAre(ItemPath{0, 3}, ItemPath{0, 4}));
}

TEST_F(ItemSelectionTest, WhatIsGoneMeanwhileIsNotSelected) {
  tap(100);
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(ItemSelectionTest, WhatIsNoLongerAllowedIsDeselected) {
  selection.allowMultiple(true);
  select({{0, 1}, {0, 2}});
  selection.allowMultiple(false);
  EXPECT_THAT(events, ElementsAre("-1", "-2"));
  select({{0, 1}});
  selection.allowMultiple(false);
  EXPECT_THAT(events, IsEmpty());
  selection.allow(false);
  EXPECT_THAT(events, ElementsAre("-1"));
}

TEST_F(ItemSelectionTest, ForgetsWhatThereIsNoLonger) {
  select({{0, 1}, {0, 7}, {2, 0}});
  selection.keepOnly([](ItemPath path) { return path.section == 0 && path.item < 5; });
  EXPECT_THAT(selection.paths(), ElementsAre(ItemPath{0, 1}));
  selection.forgetAll();
  EXPECT_THAT(selection.paths(), IsEmpty());
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(ItemSelectionTest, MovesBehindWhatComes) {
  select({{0, 1}, {0, 3}, {1, 3}});
  selection.moveForInserted({{0, 2}, {0, 3}, {0, 9}});
  EXPECT_THAT(selection.paths(), ElementsAre(ItemPath{0, 1}, ItemPath{0, 5}, ItemPath{1, 3}));
}

TEST_F(ItemSelectionTest, MovesUpForWhatGoesAndGoesWithIt) {
  select({{0, 1}, {0, 3}, {0, 5}, {1, 5}});
  selection.moveForDeleted({{0, 0}, {0, 3}, {0, 4}, {0, 9}});
  EXPECT_THAT(selection.paths(), ElementsAre(ItemPath{0, 0}, ItemPath{0, 2}, ItemPath{1, 5}));
}

}  // namespace
}  // namespace desktop::uikit
