// SPDX-License-Identifier: MIT
#include "lumifact/grid/item_side.h"

#include <gtest/gtest.h>

#include <limits>

namespace lumifact {
namespace {

GridMeasures measures(std::int32_t reduction, double width = 375, double spacing = 1) {
  return {.columnReduction = reduction, .screenWidth = width, .spacing = spacing};
}

TEST(ItemSide, WithoutAReductionThePlatformsOwnHolds) {
  EXPECT_EQ(sideInColumns(measures(0), 4), std::nullopt);
  EXPECT_EQ(sideOfItems(measures(0)), std::nullopt);
}

TEST(ItemSide, TwoColumnsFewerThanThePlatformHas) {
  const struct {
    std::int64_t columns;
    double width;
    double spacing;
    double side;
  } rows[] = {
      {4, 375, 1, 186.5},
      {4, 375, 0, 187.5},
      {4, 414, 1, 206},
      {4, 1024, 2, 510},
      {3, 375, 1, 375},
      {8, 667, 1, 106.16666412353516},
      {13, 1112, 1, 91.090911865234375},
      {13, 375, 1, 24.090909957885742},
      {20, 1112, 1, 44.777778625488281},
      {20, 375, 1, 3.8333332538604736},
      {4, 0, 1, -1},
  };
  for (const auto& row : rows)
    EXPECT_EQ(sideInColumns(measures(2, row.width, row.spacing), row.columns), row.side)
        << row.columns << " columns in " << row.width;
}

TEST(ItemSide, FewerColumnsMakeThumbnailsLargerUntilTheSpacesEatThem) {
  const auto stockSide = [](double columns) { return (1536 - (columns - 1)) / columns; };
  EXPECT_GT(*sideInColumns(measures(2, 1536), 15), stockSide(15));
  EXPECT_LT(*sideInColumns(measures(2, 1536), 20), stockSide(20));
}

TEST(ItemSide, WhereNoColumnIsLeftThePlatformsOwnHolds) {
  for (const std::int64_t columns : {std::int64_t{2}, std::int64_t{1}, std::int64_t{0},
                                     std::int64_t{-4}, std::numeric_limits<std::int64_t>::min()})
    EXPECT_EQ(sideInColumns(measures(2), columns), std::nullopt) << columns;
}

TEST(ItemSide, OfAllItemsCountsOneSpaceMore) {
  EXPECT_EQ(sideOfItems(measures(2)), 185.5);
  EXPECT_EQ(sideOfItems(measures(2, 375, 0.1)), static_cast<double>(187.3F));
  EXPECT_EQ(sideOfItems(measures(1)), 122);
  EXPECT_EQ(sideOfItems(measures(3)), 374);
}

TEST(ItemSide, OfAllItemsIsThePlatformsOwnBeyondThreeColumnsFewer) {
  EXPECT_EQ(sideOfItems(measures(4)), std::nullopt);
  EXPECT_EQ(sideOfItems(measures(100)), std::nullopt);
}

}  // namespace
}  // namespace lumifact
