// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/base/item_list.h"

#include <gtest/gtest.h>

namespace desktop::photos_ui {
namespace {

using library::ItemPointer;

ItemPointer item(const std::string& name, double date) {
  return std::make_shared<library::LibraryItem>(library::LibraryItem{
      .path = "/" + name, .uuid = "uuid of " + name, .modificationDate = {date}});
}

ItemList sample() {
  return ItemList({item("a", 1), item("b", 2), item("c", 2), item("d", 5)},
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
  EXPECT_FALSE(list.find(*item("e", 2)));
}

TEST(ItemList, FindsAFileThatGotAnotherDate) {
  const ItemList list = sample();
  EXPECT_EQ(list.find(*item("c", 2)), 2U);
  EXPECT_EQ(list.find(*item("c", 77)), 2U);
}

TEST(ItemList, StaysAtTheNextItemThatIsLeft) {
  const ItemList before = sample();
  const ItemList after({item("a", 1), item("d", 5)});
  EXPECT_EQ(after.placeAfterChange(before, 0), 0U);
  EXPECT_EQ(after.placeAfterChange(before, 1), 1U);
  EXPECT_EQ(ItemList({item("a", 1)}).placeAfterChange(before, 3), 0U);
  EXPECT_FALSE(ItemList().placeAfterChange(before, 0));
  EXPECT_FALSE(after.placeAfterChange(before, 4));
}

}  // namespace
}  // namespace desktop::photos_ui
