// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/index_path.h"

#include <gtest/gtest.h>

#include "desktop/uikit/application/uikit.h"

namespace desktop::uikit {
namespace {

class IndexPathTest : public testing::Test {
 protected:
  IndexPathTest() { registerUIKit(); }

  static NSIndexPath made(const std::vector<NSUInteger>& indexes) {
    return send<NSIndexPath, "indexPathWithIndexes:length:">(
        NSIndexPath::classObject(), indexes.data(), NSUInteger{indexes.size()});
  }

 private:
  const AutoreleasePool _pool;
};

TEST_F(IndexPathTest, ARowOfASectionIsReadBack) {
  const auto path = send<NSIndexPath, "indexPathForRow:inSection:">(NSIndexPath::classObject(),
                                                                    NSInteger{7}, NSInteger{3});
  EXPECT_EQ(path.section(), 3);
  EXPECT_EQ(path.row(), 7);
  EXPECT_EQ((send<NSInteger, "item">(path)), 7);
  EXPECT_EQ(itemPathOf(path), (ItemPath{3, 7}));
}

TEST_F(IndexPathTest, ItemsAndRowsAreTheSame) {
  const auto item = send<NSIndexPath, "indexPathForItem:inSection:">(NSIndexPath::classObject(),
                                                                     NSInteger{7}, NSInteger{3});
  EXPECT_TRUE(item.isEqual(indexPathOf({3, 7})));
  EXPECT_FALSE(item.isEqual(indexPathOf({7, 3})));
}

TEST_F(IndexPathTest, PathsAreOrderedBySectionThenRow) {
  const auto compared = [](ItemPath left, ItemPath right) {
    return send<NSInteger, "compare:">(indexPathOf(left), indexPathOf(right));
  };
  EXPECT_EQ(compared({0, 5}, {1, 0}), -1);
  EXPECT_EQ(compared({1, 0}, {0, 5}), 1);
  EXPECT_EQ(compared({1, 4}, {1, 5}), -1);
  EXPECT_EQ(compared({1, 5}, {1, 5}), 0);
}

TEST_F(IndexPathTest, WhatIsNoRowHasNone) {
  EXPECT_FALSE(itemPathOf({}));
  EXPECT_FALSE(itemPathOf(NSString::make("1.2")));
  EXPECT_FALSE(itemPathOf(made({4})));
  EXPECT_EQ(made({4}).section(), 4);
  EXPECT_EQ(made({4}).row(), NSNotFound);
  EXPECT_EQ(itemPathOf(made({1, 2, 3})), (ItemPath{1, 2}));
}

TEST_F(IndexPathTest, NegativeIndicesBelongToNoRow) {
  const auto path = send<NSIndexPath, "indexPathForRow:inSection:">(NSIndexPath::classObject(),
                                                                    NSInteger{-1}, NSInteger{0});
  EXPECT_EQ(path.row(), NSNotFound);
}

}  // namespace
}  // namespace desktop::uikit
