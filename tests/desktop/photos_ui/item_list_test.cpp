// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/base/item_list.h"

#include <gtest/gtest.h>

#include "tests/desktop/photos_ui/sample_items.h"

namespace desktop::photos_ui {
namespace {

ItemList sample() {
  return ItemList({sampleItem("a", 1), sampleItem("b", 2), sampleItem("c", 2), sampleItem("d", 5)},
                  {{"first", 0, 1}, {"second", 1, 3}});
}

TEST(ItemList, NumbersItemsThroughAllSections) {
  const ItemList list = sample();
  const uikit::ItemPath paths[] = {{0, 0}, {1, 0}, {1, 1}, {1, 2}};
  for (std::size_t index = 0; index < list.size(); ++index) {
    EXPECT_EQ(list.pathOf(index), paths[index]) << index;
    EXPECT_EQ(list.indexOf(paths[index]), index);
  }
}

TEST(ItemList, HasNoPlaceForWhatIsNotInIt) {
  const ItemList list = sample();
  EXPECT_FALSE(list.pathOf(4));
  for (const uikit::ItemPath path :
       {uikit::ItemPath{0, 1}, {1, 3}, {2, 0}, {-1, 0}, {0, -1}, {1L << 40, 1L << 40}})
    EXPECT_FALSE(list.indexOf(path)) << path.section << " " << path.item;
  EXPECT_FALSE(ItemList().pathOf(0));
  EXPECT_FALSE(list.find(*sampleItem("e", 2)));
}

TEST(ItemList, FindsAFileThatGotAnotherDate) {
  const ItemList list = sample();
  EXPECT_EQ(list.find(*sampleItem("c", 2)), 2U);
  EXPECT_EQ(list.find(*sampleItem("c", 77)), 2U);
}

TEST(ItemList, StaysAtTheNextItemThatIsLeft) {
  const ItemList before = sample();
  const ItemList after({sampleItem("a", 1), sampleItem("d", 5)});
  EXPECT_EQ(after.placeAfterChange(before, 0), 0U);
  EXPECT_EQ(after.placeAfterChange(before, 1), 1U);
  EXPECT_EQ(ItemList({sampleItem("a", 1)}).placeAfterChange(before, 3), 0U);
  EXPECT_FALSE(ItemList().placeAfterChange(before, 0));
  EXPECT_FALSE(after.placeAfterChange(before, 4));
}

}  // namespace
}  // namespace desktop::photos_ui
