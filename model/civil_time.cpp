// SPDX-License-Identifier: MIT
#include "model/civil_time.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace model {

namespace {

constexpr double firstSecond = -62135596800.0;  // 0001-01-01 00:00:00
constexpr double lastSecond = 253402300799.0;   // 9999-12-31 23:59:59
constexpr std::int64_t secondsPerDay = 86400;
constexpr std::int64_t daysPer400Years = 146097;  // after which the calendar repeats

// The quotient rounded toward the past.
constexpr std::int64_t floorDivided(std::int64_t number, std::int64_t divisor) {
  return (number >= 0 ? number : number - divisor + 1) / divisor;
}

}  // namespace

CivilTime civilTimeInUtc(Date date) {
  using std::chrono::days;
  using std::chrono::sys_days;
  const double bounded = std::isnan(date.secondsSince1970)
                             ? 0
                             : std::clamp(date.secondsSince1970, firstSecond, lastSecond);
  const auto seconds = static_cast<std::int64_t>(std::floor(bounded));
  const std::int64_t dayNumber = floorDivided(seconds, secondsPerDay);
  const auto secondOfDay = static_cast<int>(seconds - dayNumber * secondsPerDay);
  const std::chrono::year_month_day day{sys_days(days(dayNumber))};
  return {.year = static_cast<int>(day.year()),
          .month = static_cast<int>(static_cast<unsigned>(day.month())),
          .day = static_cast<int>(static_cast<unsigned>(day.day())),
          .hour = secondOfDay / 3600,
          .minute = secondOfDay / 60 % 60,
          .second = secondOfDay % 60};
}

Date dateFromUtc(const CivilTime& time) {
  const std::int64_t months = std::int64_t{time.year} * 12 + time.month - 1;
  const std::int64_t year = floorDivided(months, 12);
  // The calendar library knows 65,536 years only, but the calendar repeats.
  const std::int64_t cycles = floorDivided(year, 400);
  const std::chrono::sys_days firstOfMonth{
      std::chrono::year{static_cast<int>(year - cycles * 400)} /
      std::chrono::month{static_cast<unsigned>(months - year * 12 + 1)} / std::chrono::day{1}};
  const double dayNumber =
      static_cast<double>(firstOfMonth.time_since_epoch().count() + cycles * daysPer400Years) +
      static_cast<double>(time.day) - 1;
  return {dayNumber * 86400.0 + time.hour * 3600.0 + time.minute * 60.0 + time.second};
}

}  // namespace model
