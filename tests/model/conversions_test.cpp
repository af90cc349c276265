// SPDX-License-Identifier: MIT
#include "model/conversions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "model/description.h"

namespace model {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr auto most64 = std::numeric_limits<std::int64_t>::max();
constexpr auto least64 = std::numeric_limits<std::int64_t>::min();
constexpr std::uint64_t firstLarge = std::uint64_t{1} << 63;
constexpr auto mostUnsigned = std::numeric_limits<std::uint64_t>::max();
constexpr auto most32 = std::numeric_limits<std::int32_t>::max();
constexpr auto least32 = std::numeric_limits<std::int32_t>::min();

template <typename Result>
struct Row {
  Value value;
  Result result;
};

TEST(Conversions, IntegerValueTruncatesAndSaturates) {
  const Row<std::int64_t> rows[] = {
      {16, 16},
      {most64, most64},
      {firstLarge, least64},
      {mostUnsigned, -1},
      {0.6, 0},
      {-0.6, 0},
      {4.9, 4},
      {-1.9, -1},
      {1e300, most64},
      {-1e300, least64},
      {9223372036854775807.0, most64},
      {-9223372036854775808.0, least64},
      {infinity, most64},
      {-infinity, least64},
      {notANumber, 0},
      {true, 1},
      {false, 0},
      {"24", 24},
      {" \t-24.9", -24},
      {"+5", 5},
      {"5 6", 5},
      {"0x10", 0},
      {"9223372036854775807", most64},
      {"9223372036854775808", most64},
      {"-9223372036854775808", least64},
      {"-9223372036854775809", least64},
      {"99999999999999999999999999", most64},
      {"abc", 0},
      {"-", 0},
      {"", 0},
      {Value(), 0},
      {Array{1}, 0},
      {Dictionary{{"a", 1}}, 0},
      {Data{1}, 0},
      {Date{5}, 0},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(integerValue(row.value), row.result) << valueText(row.value);
  }
}

TEST(Conversions, IntValueKeepsLowBitsOfIntegersAndSaturatesTheRest) {
  const Row<std::int32_t> rows[] = {
      {-5, -5},
      {(std::int64_t{1} << 32) + 7, 7},
      {std::int64_t{1} << 31, least32},
      {std::int64_t{0xFFFFFFFF}, -1},
      {firstLarge, 0},
      {mostUnsigned - 6, -7},
      {1e10, most32},
      {-1e10, least32},
      {2147483646.9, 2147483646},
      {2147483647.5, most32},
      {-3.9, -3},
      {notANumber, 0},
      {infinity, most32},
      {true, 1},
      {false, 0},
      {"2147483647", most32},
      {"99999999999", most32},
      {"-2147483648", least32},
      {"-99999999999", least32},
      {"12.9", 12},
      {"x", 0},
      {Value(), 0},
      {Array{}, 0},
      {Date{5}, 0},
  };
  for (const auto& row : rows) EXPECT_EQ(intValue(row.value), row.result) << valueText(row.value);
}

TEST(Conversions, BoolValueReadsWordsAndDigits) {
  const Row<bool> rows[] = {
      {true, true},      {false, false},   {1, true},        {0, false},         {-1, true},
      {0.5, true},       {0.0, false},     {"YES", true},    {"yes", true},      {"True", true},
      {"t", true},       {"1", true},      {"-9", true},     {" \t+007", true},  {"0", false},
      {"000", false},    {"no", false},    {"NO", false},    {"false", false},   {"on", false},
      {"", false},       {"-", false},     {"00y", true},    {"x1", false},      {Value(), false},
      {Array{1}, false}, {Data{1}, false}, {Date{1}, false}, {notANumber, true}, {firstLarge, true},
  };
  for (const auto& row : rows) EXPECT_EQ(boolValue(row.value), row.result) << valueText(row.value);
}

TEST(Conversions, FloatValueRoundsToSinglePrecision) {
  const Row<float> rows[] = {
      {0.1, 0.1F},
      {3, 3.0F},
      {16777217, 16777216.0F},
      {true, 1.0F},
      {false, 0.0F},
      {"0.008333", 0.008333F},
      {" -2.5s", -2.5F},
      {"1/2", 1.0F},
      {"", 0.0F},
      {"abc", 0.0F},
      {1e-60, 0.0F},
      {Value(), 0.0F},
      {Array{1}, 0.0F},
      {Data{1}, 0.0F},
      {firstLarge, 0x1p63F},
      {mostUnsigned, 0x1p64F},
  };
  for (const auto& row : rows) EXPECT_EQ(floatValue(row.value), row.result) << valueText(row.value);
  EXPECT_TRUE(std::isinf(floatValue(1e300)));
  EXPECT_TRUE(std::isinf(floatValue("1e300")));
  EXPECT_TRUE(std::isnan(floatValue(notANumber)));
}

}  // namespace
}  // namespace model
