// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/item_press.h"

#include <gtest/gtest.h>

namespace desktop::uikit {
namespace {

using Place = std::optional<ItemPath>;

TEST(ItemPress, AFingerTapsWhatItLiftsFromWhereItStayed) {
  ItemPress press;
  press.begin({1, 2});
  EXPECT_TRUE(press.isOn({1, 2}));
  EXPECT_FALSE(press.isOn({1, 3}));
  struct Finger {
    Place place;
    bool hasLeft;
    Place tapped;
  };
  for (const auto& [place, hasLeft, tapped] :
       {Finger{ItemPath{1, 2}, false, ItemPath{1, 2}}, Finger{ItemPath{1, 3}, true, {}},
        Finger{{}, true, {}}}) {
    EXPECT_EQ(press.hasLeft([&] { return place; }), hasLeft);
    EXPECT_EQ(press.tappedBy([&] { return place; }), tapped);
  }
}

TEST(ItemPress, WithoutAPressNobodyAsksWhereTheFingerIs) {
  const ItemPress press;
  const auto where = []() -> Place {
    ADD_FAILURE();
    return {};
  };
  EXPECT_FALSE(press.hasLeft(where));
  EXPECT_EQ(press.tappedBy(where), std::nullopt);
}

TEST(ItemPress, EndsOnce) {
  ItemPress press;
  press.begin({0, 4});
  EXPECT_EQ(press.end(), (ItemPath{0, 4}));
  EXPECT_EQ(press.end(), std::nullopt);
  EXPECT_EQ(press.path(), std::nullopt);
}

TEST(ItemPress, FindingTheFingerMayEndThePress) {
  ItemPress press;
  press.begin({0, 4});
  const auto tapped = press.tappedBy([&]() -> Place {
    press.end();
    return ItemPath{0, 4};
  });
  EXPECT_EQ(tapped, (ItemPath{0, 4}));
  EXPECT_EQ(press.path(), std::nullopt);
}

}  // namespace
}  // namespace desktop::uikit
