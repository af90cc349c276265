// SPDX-License-Identifier: MIT
#include "desktop/uikit/views/subview_order.h"

#include <gtest/gtest.h>

#include "tests/desktop/uikit/application_test.h"

namespace desktop::uikit {
namespace {

// Views by their letters, "abc" to begin with, from back to front.
class SubviewOrderTest : public ApplicationTest {
 protected:
  SubviewOrderTest() {
    for (auto& view : views) view = bridge::makeView<UIView>({});
    for (std::size_t index = 0; index < 3; ++index) order.insert(views[index], index);
  }
  std::string letters() const {
    std::string found;
    for (const auto& view : order.all())
      for (std::size_t index = 0; index < 4; ++index)
        if (views[index].get() == view.get()) found += static_cast<char>('a' + index);
    return found;
  }
  UIView a() const { return views[0]; }
  UIView b() const { return views[1]; }
  UIView c() const { return views[2]; }
  UIView stranger() const { return views[3]; }

  Owned<UIView> views[4];
  SubviewOrder order;
};

TEST_F(SubviewOrderTest, AViewGoesInFrontOfAnotherOrBehindIt) {
  EXPECT_EQ(order.indexBelow(b()), 1u);
  EXPECT_EQ(order.indexAbove(b()), 2u);
  EXPECT_EQ(order.indexAbove(c()), 3u);
  order.insert(stranger(), order.indexAbove(a()));
  EXPECT_EQ(letters(), "adbc");
}

TEST_F(SubviewOrderTest, WithoutTheOtherItGoesInFrontOfAll) {
  EXPECT_EQ(order.indexBelow(stranger()), 3u);
  EXPECT_EQ(order.indexAbove(stranger()), 3u);
  order.insert(stranger(), 100);
  EXPECT_EQ(letters(), "abcd");
}

TEST_F(SubviewOrderTest, ViewsGoToTheFrontAndToTheBack) {
  EXPECT_TRUE(order.bringToFront(a()));
  EXPECT_EQ(letters(), "bca");
  EXPECT_TRUE(order.sendToBack(c()));
  EXPECT_EQ(letters(), "cba");
  EXPECT_FALSE(order.bringToFront(stranger()));
  EXPECT_FALSE(order.sendToBack(stranger()));
  EXPECT_EQ(letters(), "cba");
}

TEST_F(SubviewOrderTest, WhatLeavesIsLetGo) {
  order.remove(b());
  order.remove(stranger());
  EXPECT_EQ(letters(), "ac");
}

}  // namespace
}  // namespace desktop::uikit
