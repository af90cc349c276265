// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/one_up/browsed_items.h"

#include <gtest/gtest.h>

#include "tests/desktop/photos_ui/sample_items.h"

namespace desktop::photos_ui {
namespace {

TEST(BrowsedItems, HasNothingOnShowAtFirst) {
  const BrowsedItems items;
  EXPECT_FALSE(items.current());
  EXPECT_FALSE(items.currentPath());
  EXPECT_TRUE(items.list()->isEmpty());
}

TEST(BrowsedItems, GoesFromItemToItem) {
  BrowsedItems items;
  const auto list = sampleList(3);
  items.set(list, 1);
  EXPECT_EQ(items.current(), list->at(1));
  items.goTo(2);
  EXPECT_EQ(items.current(), list->at(2));
  EXPECT_EQ(items.currentPath(), (uikit::ItemPath{0, 2}));
  items.goTo(3);
  EXPECT_FALSE(items.current());
}

TEST(BrowsedItems, FollowsTheFilesThatAreLeft) {
  BrowsedItems items;
  const auto list = sampleList(3);
  items.set(list, 1);
  const auto same = [&](const std::string& uuid) {
    return *std::ranges::find(list->items(), uuid, &library::LibraryItem::uuid);
  };
  EXPECT_FALSE(items.listAfterChange(same)) << "nothing changed";

  const auto changed = sampleItem("2", 9);
  const auto after = items.listAfterChange([&](const std::string& uuid) {
    if (uuid == "uuid of 0") return library::ItemPointer();
    return uuid == changed->uuid ? changed : same(uuid);
  });
  ASSERT_TRUE(after);
  EXPECT_EQ(after->items(), (std::vector{list->at(1), changed}));
  EXPECT_EQ(items.list(), list) << "it is only asked";

  const auto none = items.listAfterChange([](const std::string&) { return nullptr; });
  ASSERT_TRUE(none);
  EXPECT_TRUE(none->isEmpty());
}

}  // namespace
}  // namespace desktop::photos_ui
