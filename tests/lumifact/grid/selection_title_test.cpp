// SPDX-License-Identifier: MIT
#include "lumifact/grid/selection_title.h"

#include <gtest/gtest.h>

#include <limits>

namespace lumifact {
namespace {

std::string inBytes(std::int64_t size) {
  return std::to_string(size) + " B";
}

TEST(SelectionSizeTest, addsTheSizes) {
  EXPECT_EQ(selectionSize({}), 0U);
  EXPECT_EQ(selectionSize({1'500'000, 2'500'000}), 4'000'000U);
}

TEST(SelectionSizeTest, anUnreadableFileAddsNothing) {
  EXPECT_EQ(selectionSize({std::nullopt, 7, std::nullopt}), 7U);
  EXPECT_EQ(selectionSize({std::nullopt}), 0U);
}

TEST(SelectionSizeTest, aNegativeSizeFromTheCacheIsTakenAway) {
  EXPECT_EQ(selectionSize({-1'294'967'296, 2'000'000'000}), 705'032'704U);
  EXPECT_EQ(selectionSize({-5}), std::numeric_limits<std::uint64_t>::max() - 4);
  EXPECT_EQ(selectionSize({-5, 5}), 0U);
}

TEST(SelectionSizeTest, wrapsAround) {
  const std::int64_t largest = std::numeric_limits<std::int64_t>::max();
  EXPECT_EQ(selectionSize({largest, largest, 2}), 0U);
}

TEST(SelectionTitleTest, theSizeFollowsInParenthesesWithATrailingBlank) {
  EXPECT_EQ(selectionTitle("2 Items Selected", 4'000'000, inBytes),
            "2 Items Selected (4000000 B) ");
}

TEST(SelectionTitleTest, aTotalOfZeroShowsTheStockTitle) {
  EXPECT_EQ(selectionTitle("2 Items Selected", 0, inBytes), "2 Items Selected");
  EXPECT_EQ(selectionTitle("2 Items Selected", selectionSize({-5, 5}), inBytes),
            "2 Items Selected");
}

TEST(SelectionTitleTest, aNegativeTotalIsShownNegative) {
  EXPECT_EQ(selectionTitle("1 Photo Selected", selectionSize({-1'294'967'296}), inBytes),
            "1 Photo Selected (-1294967296 B) ");
}

}  // namespace
}  // namespace lumifact
