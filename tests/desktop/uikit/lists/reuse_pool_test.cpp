// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/reuse_pool.h"

#include <gtest/gtest.h>

#include "desktop/uikit/lists/ui_collection_reusable_view.h"
#include "desktop/uikit/lists/ui_collection_view_cell.h"
#include "tests/desktop/uikit/application_test.h"

namespace desktop::uikit {
namespace {

using View = Owned<UIView>;

View makeReusable(Class aClass) {
  return View::adopt(send<UIView, "init">(send<id, "alloc">(aClass)));
}

class ReusePoolTest : public ApplicationTest {
 protected:
  UIView dequeue(const std::string& identifier) {
    return pool.dequeue(identifier, [this](Class registered) {
      asked = registered;
      return makeReusable(UICollectionReusableViewState::classObject());
    });
  }

  ReusePool pool;
  Class asked = nullptr;
  const View view = makeReusable(UICollectionViewCellState::classObject());
};

TEST_F(ReusePoolTest, WhatWaitsIsPreparedAndUsedOnce) {
  UICollectionViewCellState& cell = UICollectionViewCellState::of(view.get());
  send<void, "setSelected:">(view, true);
  pool.put("cell", view);
  EXPECT_TRUE(cell.isSelected());
  EXPECT_NE(dequeue("other"), view.get());
  EXPECT_EQ(dequeue("cell"), view.get());
  EXPECT_FALSE(cell.isSelected());
  EXPECT_NE(dequeue("cell"), view.get());
}

TEST_F(ReusePoolTest, WithoutAnIdentifierNothingIsUsedAgain) {
  pool.put("", view);
  EXPECT_NE(dequeue(""), view.get());
}

TEST_F(ReusePoolTest, NewOnesAreMadeOfTheRegisteredClass) {
  dequeue("cell");
  EXPECT_EQ(asked, Class());
  pool.registerClass("cell", UICollectionViewCellState::classObject());
  dequeue("cell");
  EXPECT_EQ(asked, UICollectionViewCellState::classObject());
  pool.registerClass("cell", nullptr);
  dequeue("cell");
  EXPECT_EQ(asked, Class());
}

TEST_F(ReusePoolTest, WhatShowsNothingInTheEndLeavesTheList) {
  const View other = makeReusable(UICollectionReusableViewState::classObject());
  const View elsewhere = makeReusable(UICollectionReusableViewState::classObject());
  const View list = bridge::makeView<UIView>({});
  list->addSubview(view);
  list->addSubview(other);
  window().addSubview(elsewhere);
  for (const View& put : {view, other, elsewhere}) pool.put("cell", put);
  pool.shown(view);
  pool.settle(list);
  ASSERT_EQ(list->subviews().count(), 1u);
  EXPECT_EQ(list->subviews().at(0), view.get());
  EXPECT_EQ(window().subviews().count(), 1u);
}

}  // namespace
}  // namespace desktop::uikit
