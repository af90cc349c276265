// SPDX-License-Identifier: MIT
#include "lumifact/report/exposure_fraction.h"

#include <gtest/gtest.h>

#include <limits>

namespace lumifact {
namespace {

struct Row {
  float seconds;
  std::string_view text;
};

TEST(ExposureFraction, IsWrittenAsPhotographersDo) {
  constexpr Row rows[] = {
      {0.008333F, "1/120"}, {0.0005F, "1/2000"}, {0.25F, "1/4"},    {0.3F, "1/3"},
      {0.01F, "1/100"},     {0.6F, "1/2"},       {0.99F, "1/1"},    {1.5F, "1 1/2"},
      {2.5F, "2 1/2"},      {1.3F, "1 1/3"},     {30.2F, "30 1/5"}, {0.000125F, "1/8000"},
  };
  for (const Row& row : rows) EXPECT_EQ(exposureFraction(row.seconds), row.text) << row.seconds;
}

TEST(ExposureFraction, RepeatsWholeSecondsAsTheNumerator) {
  constexpr Row rows[] = {{0, "0/1"}, {-0.0F, "0/1"}, {1, "1 1/1"}, {2, "2 2/1"}, {30, "30 30/1"}};
  for (const Row& row : rows) EXPECT_EQ(exposureFraction(row.seconds), row.text) << row.seconds;
}

TEST(ExposureFraction, CarriesTheSignInFront) {
  constexpr Row rows[] = {{-0.25F, "-1/4"}, {-1.5F, "-1 1/2"}, {-2, "-2 2/1"}};
  for (const Row& row : rows) EXPECT_EQ(exposureFraction(row.seconds), row.text) << row.seconds;
}

TEST(ExposureFraction, SaturatesAtTheLimitsOf32Bits) {
  constexpr float infinity = std::numeric_limits<float>::infinity();
  constexpr Row rows[] = {
      {1e-12F, "1/2147483647"},
      {1e-18F, "1/2147483647"},
      {1e20F, "2147483647 2147483647/1"},
      {-1e20F, "-2147483648 2147483647/1"},
      {infinity, "2147483647 2147483647/1"},
      {-infinity, "-2147483648 2147483647/1"},
  };
  for (const Row& row : rows) EXPECT_EQ(exposureFraction(row.seconds), row.text) << row.seconds;
}

TEST(ExposureFraction, TakesOneUnderMagnitudesTooSmallToInvert) {
  constexpr Row rows[] = {{1e-20F, "0/1"}, {-1e-30F, "0/1"}, {1e-45F, "0/1"}};
  for (const Row& row : rows) EXPECT_EQ(exposureFraction(row.seconds), row.text) << row.seconds;
}

TEST(ExposureFraction, OfWhatIsNoNumberIsText) {
  EXPECT_EQ(exposureFraction(std::numeric_limits<float>::quiet_NaN()), "1/0");
}

}  // namespace
}  // namespace lumifact
