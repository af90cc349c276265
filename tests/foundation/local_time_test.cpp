// SPDX-License-Identifier: MIT
#include "foundation/local_time.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/foundation/environment.h"

namespace foundation {
namespace {

using model::CivilTime;

struct Moment {
  const char* zone;
  double secondsSince1970;
  CivilTime clocks;
};

const Moment moments[] = {
    {"UTC", 1538308991, {2018, 9, 30, 12, 3, 11}},
    {"Europe/Berlin", 1538308991, {2018, 9, 30, 14, 3, 11}},
    {"Europe/Berlin", 1543579391, {2018, 11, 30, 13, 3, 11}},
    {"America/Los_Angeles", 1538308991, {2018, 9, 30, 5, 3, 11}},
    {"Asia/Kathmandu", 1538308991, {2018, 9, 30, 17, 48, 11}},
    {"CET-1CEST,M3.5.0,M10.5.0/3", 1538308991, {2018, 9, 30, 14, 3, 11}},
    {"EST5", 0, {1969, 12, 31, 19, 0, 0}},
    {"UTC", -1, {1969, 12, 31, 23, 59, 59}},
    // Clocks set back: 02:30 comes twice, first in summer time.
    {"Europe/Berlin", 1540686600, {2018, 10, 28, 2, 30, 0}},
    // Moscow changed its zone without a summer time: 01:30 came twice.
    {"Europe/Moscow", 1414272600, {2014, 10, 26, 1, 30, 0}},
};

TEST(LocalTimeTest, readsTheClocksOfTheZone) {
  for (const Moment& moment : moments) {
    const ScopedVariable zone("TZ", moment.zone);
    EXPECT_EQ(localTime({moment.secondsSince1970}), moment.clocks) << moment.zone;
    EXPECT_EQ(localTime({moment.secondsSince1970 + 0.75}), moment.clocks) << moment.zone;
  }
}

TEST(LocalTimeTest, findsTheMomentThatClocksShow) {
  for (const Moment& moment : moments) {
    const ScopedVariable zone("TZ", moment.zone);
    EXPECT_EQ(dateFromLocalTime(moment.clocks).secondsSince1970, moment.secondsSince1970)
        << moment.zone;
  }
}

TEST(LocalTimeTest, theSecondOfTwoMomentsShowsTheSameClocks) {
  const ScopedVariable zone("TZ", "Europe/Berlin");
  EXPECT_EQ(localTime({1540686600 + 3600.0}), (CivilTime{2018, 10, 28, 2, 30, 0}));
}

TEST(LocalTimeTest, aTimeThatClocksSkipIsTakenAsIfTheyHadNot) {
  const ScopedVariable zone("TZ", "Europe/Berlin");
  const model::Date date = dateFromLocalTime({2018, 3, 25, 2, 30, 0});
  EXPECT_EQ(date.secondsSince1970, 1521941400);
  EXPECT_EQ(localTime(date), (CivilTime{2018, 3, 25, 3, 30, 0}));
}

TEST(LocalTimeTest, everyHourOfAYearComesBack) {
  for (const char* name : {"Europe/Berlin", "America/New_York", "Australia/Lord_Howe", "UTC"}) {
    const ScopedVariable zone("TZ", name);
    for (int hour = 0; hour < 366 * 24; ++hour) {
      const model::Date date{1514764800 + hour * 3600.0};
      const double back = dateFromLocalTime(localTime(date)).secondsSince1970;
      const bool first = back == date.secondsSince1970;
      EXPECT_TRUE(first || localTime({back}) == localTime(date)) << name << " " << hour;
      EXPECT_LE(back, date.secondsSince1970) << name << " " << hour;
    }
  }
}

TEST(LocalTimeTest, datesOutsideTheCalendarAreBounded) {
  const ScopedVariable zone("TZ", "Europe/Berlin");
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(localTime({1e300}).year, 9999);
  EXPECT_EQ(localTime({infinity}).year, 9999);
  EXPECT_EQ(localTime({-infinity}).year, 1);
  EXPECT_EQ(localTime({std::numeric_limits<double>::quiet_NaN()}).year, 1970);
}

}  // namespace
}  // namespace foundation
