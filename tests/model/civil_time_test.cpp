// SPDX-License-Identifier: MIT
#include "model/civil_time.h"

#include <gtest/gtest.h>

#include <ctime>
#include <limits>
#include <ostream>
#include <random>

namespace model {

void PrintTo(const CivilTime& time, std::ostream* out) {
  *out << time.year << '-' << time.month << '-' << time.day << ' ' << time.hour << ':'
       << time.minute << ':' << time.second;
}

namespace {

TEST(CivilTime, ReadsMomentsInUtc) {
  struct Row {
    double seconds;
    CivilTime time;
  };
  const Row rows[] = {
      {0, {1970, 1, 1, 0, 0, 0}},
      {1538309391, {2018, 9, 30, 12, 9, 51}},
      {1538309391.999, {2018, 9, 30, 12, 9, 51}},
      {-1, {1969, 12, 31, 23, 59, 59}},
      {-0.25, {1969, 12, 31, 23, 59, 59}},
      {-86400, {1969, 12, 31, 0, 0, 0}},
      {951782400, {2000, 2, 29, 0, 0, 0}},
      {-62135596800, {1, 1, 1, 0, 0, 0}},
      {253402300799, {9999, 12, 31, 23, 59, 59}},
  };
  for (const Row& row : rows) EXPECT_EQ(civilTimeInUtc({row.seconds}), row.time) << row.seconds;
}

TEST(CivilTime, KeepsToTheYears1To9999) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  const CivilTime first = {1, 1, 1, 0, 0, 0};
  const CivilTime last = {9999, 12, 31, 23, 59, 59};
  for (const double seconds : {-62135596801.0, -1e300, -infinity}) {
    EXPECT_EQ(civilTimeInUtc({seconds}), first) << seconds;
  }
  for (const double seconds : {253402300800.0, 253402300799.5, 1e300, infinity}) {
    EXPECT_EQ(civilTimeInUtc({seconds}), last) << seconds;
  }
  EXPECT_EQ(civilTimeInUtc({std::numeric_limits<double>::quiet_NaN()}), CivilTime());
}

TEST(CivilTime, CarriesFieldsThatAreOutOfRange) {
  struct Row {
    CivilTime time;
    CivilTime same;
  };
  const Row rows[] = {
      {{2018, 13, 1, 0, 0, 0}, {2019, 1, 1, 0, 0, 0}},
      {{2018, 0, 1, 0, 0, 0}, {2017, 12, 1, 0, 0, 0}},
      {{2018, -12, 1, 0, 0, 0}, {2016, 12, 1, 0, 0, 0}},
      {{2018, 2, 29, 0, 0, 0}, {2018, 3, 1, 0, 0, 0}},
      {{2018, 3, 0, 0, 0, 0}, {2018, 2, 28, 0, 0, 0}},
      {{2018, 12, 31, 23, 59, 60}, {2019, 1, 1, 0, 0, 0}},
      {{2018, 1, 1, 24, -1, 0}, {2018, 1, 1, 23, 59, 0}},
      {{2018, 25, 1, 0, 0, 0}, {2020, 1, 1, 0, 0, 0}},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(civilTimeInUtc(dateFromUtc(row.time)), row.same)
        << ::testing::PrintToString(row.time);
  }
}

TEST(CivilTime, TakesAnyFieldsWhatever) {
  constexpr int most = std::numeric_limits<int>::max();
  constexpr int least = std::numeric_limits<int>::min();
  EXPECT_GT(dateFromUtc({most, most, most, most, most, most}).secondsSince1970, 6e16);
  EXPECT_LT(dateFromUtc({least, least, least, least, least, least}).secondsSince1970, -6e16);
  EXPECT_EQ(dateFromUtc({0, 0, 0, 0, 0, 0}).secondsSince1970, -62169984000);
  EXPECT_EQ(dateFromUtc({100000, 1, 1, 0, 0, 0}).secondsSince1970, 3093527980800);
}

TEST(CivilTime, AgreesWithTheCLibrary) {
  std::mt19937_64 random(1582);
  for (int round = 0; round < 100000; ++round) {
    const std::time_t seconds = static_cast<std::time_t>(random() % 315537897600) - 62135596800;
    std::tm fields{};
    gmtime_r(&seconds, &fields);
    const CivilTime expected = {fields.tm_year + 1900, fields.tm_mon + 1, fields.tm_mday,
                                fields.tm_hour,        fields.tm_min,     fields.tm_sec};
    ASSERT_EQ(civilTimeInUtc({static_cast<double>(seconds)}), expected) << seconds;
    ASSERT_EQ(dateFromUtc(expected).secondsSince1970, static_cast<double>(seconds));
  }
}

}  // namespace
}  // namespace model
