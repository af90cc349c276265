// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/table/table_cells.h"

#include <gtest/gtest.h>

#include "desktop/uikit/lists/ui_table_view_cell.h"
#include "tests/desktop/uikit/application_test.h"

namespace desktop::uikit {
namespace {

class TableCellsTest : public ApplicationTest {
 protected:
  static NSString row() { return NSString::make("row"); }
  static TableCells::Cell cell() {
    return UITableViewCellState::make(UITableViewCellState::classObject(), row());
  }

  TableCells cells;
};

TEST_F(TableCellsTest, AreKnownByTheirRows) {
  const auto second = cell();
  const auto first = cell();
  cells.show({0, 2}, second);
  cells.show({0, 1}, first);
  EXPECT_EQ(cells.at({0, 1}), first.get());
  EXPECT_FALSE(cells.at({0, 3}));
  ASSERT_EQ(cells.all().count(), 2u);
  EXPECT_EQ(cells.all().at(0), first.get());
  EXPECT_EQ(itemPathOf(cells.indexPaths().at(1)), (ItemPath{0, 2}));
}

TEST_F(TableCellsTest, ComeFromTheRegisteredClassOrTheSource) {
  EXPECT_FALSE(cells.dequeue(row()));
  cells.registerClass(row(), UITableViewCellState::classObject());
  const UITableViewCell made = cells.dequeue(row());
  EXPECT_TRUE(made);
  EXPECT_EQ(UITableViewCellState::of(made.get()).reuseIdentifier().utf8(), "row");
}

TEST_F(TableCellsTest, WhatWasPutAwayIsUsedAgain) {
  const auto waiting = cell();
  cells.putAway(waiting);
  EXPECT_EQ(cells.dequeue(row()), waiting.get());
  EXPECT_FALSE(cells.dequeue(row()));
}

TEST_F(TableCellsTest, LieAboveOtherCellsAndBelowTitles) {
  const auto table = bridge::makeView<UIView>({});
  const auto title = bridge::makeView<UIView>({});
  const auto lower = cell();
  const auto upper = cell();
  table->addSubview(lower);
  table->addSubview(title);
  TableCells::insert(upper, UIViewState::of(table.get()));
  TableCells::insert(lower, UIViewState::of(table.get()));
  ASSERT_EQ(table->subviews().count(), 3u);
  EXPECT_EQ(table->subviews().at(0), lower.get());
  EXPECT_EQ(table->subviews().at(1), upper.get());
  EXPECT_EQ(table->subviews().at(2), title.get());
}

}  // namespace
}  // namespace desktop::uikit
