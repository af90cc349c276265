// SPDX-License-Identifier: MIT
#include "model/shortest_decimal.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace model {
namespace {

TEST(ShortestDecimal, GivesDigitsAndExponent) {
  struct Row {
    double number;
    const char* digits;
    int exponent;
  };
  const Row rows[] = {
      {48.85, "4885", 1},
      {1, "1", 0},
      {1000, "1", 3},
      {0.001, "1", -3},
      {1e-5, "1", -5},
      {9.5, "95", 0},
      {0.1 + 0.2, "30000000000000004", -1},
      {9007199254740991.0, "9007199254740991", 15},
      {999999999999999.9, "9999999999999999", 14},
      {0x1p-10, "9765625", -4},
  };
  for (const Row& row : rows) {
    const auto decimal = shortestDecimal(row.number);
    ASSERT_TRUE(decimal) << row.digits;
    EXPECT_EQ(std::string(decimal->digits.data(), static_cast<std::size_t>(decimal->count)),
              row.digits);
    EXPECT_EQ(decimal->exponent, row.exponent) << row.digits;
  }
}

TEST(ShortestDecimal, LeavesVerySmallAndVeryLargeNumbersToOthers) {
  for (const double number :
       {9.999999999999999e-6, 5e-324, 9007199254740992.0, std::numeric_limits<double>::max()}) {
    EXPECT_FALSE(shortestDecimal(number)) << number;
  }
}

}  // namespace
}  // namespace model
