// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/collection/collection_cells.h"

#include <gtest/gtest.h>

#include "desktop/uikit/lists/ui_collection_view_cell.h"
#include "tests/desktop/uikit/application_test.h"

namespace desktop::uikit {
namespace {

class CollectionCellsTest : public ApplicationTest {
 protected:
  static NSString text(const char* text) { return NSString::make(text); }
  CollectionCells::View cell() {
    return CollectionCells::View::retain(cells.dequeueCell(text("cell"), {}));
  }

  CollectionCells cells;
};

TEST_F(CollectionCellsTest, ACellKnowsItsItemAndAHeaderNone) {
  const auto first = cell();
  const auto header = CollectionCells::View::retain(cells.dequeue(text("top"), text("h"), {}));
  cells.show({"", {0, 3}}, first);
  cells.show({"top", {0, 0}}, header);
  EXPECT_EQ(cells.cellAt({0, 3}), first.get());
  EXPECT_EQ(cells.pathOf(first), (ItemPath{0, 3}));
  EXPECT_EQ(cells.pathOf(header), std::nullopt);
  EXPECT_EQ(cells.viewOf({"top", {0, 0}}), header.get());
  EXPECT_FALSE(cells.cellAt({0, 4}));
  EXPECT_EQ(cells.ofKind("").count(), 1u);
  EXPECT_EQ(cells.ofKind("top").at(0), header.get());
  ASSERT_EQ(cells.indexPaths().count(), 1u);
  EXPECT_EQ(itemPathOf(cells.indexPaths().at(0)), (ItemPath{0, 3}));
}

TEST_F(CollectionCellsTest, NewOnesAreOfTheRegisteredClassWhereTheyWillStand) {
  const CGRect frame = {{10, 20}, {30, 40}};
  EXPECT_TRUE(
      isKindOf(cells.dequeueCell(text("x"), frame), UICollectionViewCellState::classObject()));
  EXPECT_FALSE(isKindOf(cells.dequeue(text("top"), text("x"), frame),
                        UICollectionViewCellState::classObject()));
  cells.registerClass(text("top"), text("x"), UICollectionViewCellState::classObject());
  const UIView made = cells.dequeue(text("top"), text("x"), frame);
  EXPECT_TRUE(isKindOf(made, UICollectionViewCellState::classObject()));
  EXPECT_EQ(made.frame(), frame);
}

TEST_F(CollectionCellsTest, WhatWasPutAwayIsUsedAgainForItsKindOnly) {
  const auto header = CollectionCells::View::retain(cells.dequeue(text("top"), text("x"), {}));
  cells.putAway(header);
  EXPECT_NE(cells.dequeue(text("bottom"), text("x"), {}), header.get());
  EXPECT_NE(cells.dequeueCell(text("x"), {}), header.get());
  EXPECT_EQ(cells.dequeue(text("top"), text("x"), {}), header.get());
}

}  // namespace
}  // namespace desktop::uikit
