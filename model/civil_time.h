// SPDX-License-Identifier: MIT
//
// Points in time as years, months, days, hours, minutes and seconds.
#pragma once

#include "model/value.h"

namespace model {

// A day and a time of day of the Gregorian calendar, without a time zone.
struct CivilTime {
  int year = 1970;
  int month = 1;  // 1 to 12
  int day = 1;    // 1 to 31
  int hour = 0;
  int minute = 0;
  int second = 0;
  bool operator==(const CivilTime&) const = default;
};

// The date in UTC, fractions of a second dropped (toward the past). Dates outside the years 1 to
// 9999 read as the nearest moment inside; NaN as 1970-01-01.
CivilTime civilTimeInUtc(Date date);

// The moment at which clocks in UTC show `time`. Fields need not be in range (second 60, month
// 13): they are carried over.
Date dateFromUtc(const CivilTime& time);

}  // namespace model
