// SPDX-License-Identifier: MIT
#include "model/result.h"

#include <gtest/gtest.h>

#include <memory>

namespace model {
namespace {

Result<int> half(int number) {
  if (number % 2 != 0) return Error{"odd"};
  return number / 2;
}

TEST(Result, HoldsAValue) {
  const auto result = half(4);
  ASSERT_TRUE(result);
  EXPECT_EQ(*result, 2);
}

TEST(Result, HoldsAnError) {
  const auto result = half(3);
  ASSERT_FALSE(result);
  EXPECT_EQ(result.error().reason, "odd");
}

TEST(Result, GivesAccessToTheValuesMembers) {
  Result<std::string> result(std::string("text"));
  result->push_back('s');
  EXPECT_EQ(result->size(), 5U);
  EXPECT_EQ(*result, "texts");
}

TEST(Result, MovesWhatCannotBeCopied) {
  Result<std::unique_ptr<int>> result(std::make_unique<int>(7));
  const std::unique_ptr<int> owner = std::move(*result);
  EXPECT_EQ(*owner, 7);
}

}  // namespace
}  // namespace model
