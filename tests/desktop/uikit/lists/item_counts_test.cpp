// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/collection/item_counts.h"

#include <gtest/gtest.h>

namespace desktop::uikit {
namespace {

TEST(ItemCounts, WhatIsNotThereHasNoItems) {
  const ItemCounts counts({3, 0, 5});
  EXPECT_EQ(counts.sections(), 3);
  EXPECT_EQ(counts.items(0), 3);
  EXPECT_EQ(counts.items(2), 5);
  for (const NSInteger section : {-1, 1, 3}) EXPECT_EQ(counts.items(section), 0) << section;
  for (const ItemPath path : {ItemPath{0, 0}, ItemPath{0, 2}, ItemPath{2, 4}})
    EXPECT_TRUE(counts.has(path)) << path.section << ", " << path.item;
  for (const ItemPath path :
       {ItemPath{0, -1}, ItemPath{0, 3}, ItemPath{1, 0}, ItemPath{-1, 0}, ItemPath{3, 0}})
    EXPECT_FALSE(counts.has(path)) << path.section << ", " << path.item;
  EXPECT_EQ(ItemCounts().sections(), 0);
}

}  // namespace
}  // namespace desktop::uikit
