// SPDX-License-Identifier: MIT
#include "model/civil_time.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace model {

namespace {

constexpr double firstSecond = -62135596800.0;  // 0001-01-01 00:00:00
constexpr double lastSecond = 253402300799.0;   // 9999-12-31 23:59:59

}  // namespace

CivilTime civilTimeInUtc(Date date) {
  using std::chrono::days;
  using std::chrono::sys_days;
  const double bounded = std::isnan(date.secondsSince1970)
                             ? 0
                             : std::clamp(date.secondsSince1970, firstSecond, lastSecond);
  const auto seconds = static_cast<std::int64_t>(std::floor(bounded));
  const std::int64_t dayNumber = (seconds >= 0 ? seconds : seconds - 86399) / 86400;
  const auto secondOfDay = static_cast<int>(seconds - dayNumber * 86400);
  const std::chrono::year_month_day day{sys_days(days(dayNumber))};
  return {.year = static_cast<int>(day.year()),
          .month = static_cast<int>(static_cast<unsigned>(day.month())),
          .day = static_cast<int>(static_cast<unsigned>(day.day())),
          .hour = secondOfDay / 3600,
          .minute = secondOfDay / 60 % 60,
          .second = secondOfDay % 60};
}

Date dateFromUtc(const CivilTime& time) {
  const int monthsSinceYear0 = time.year * 12 + time.month - 1;
  const int year = monthsSinceYear0 / 12;
  const int month = monthsSinceYear0 % 12 + 1;
  const std::chrono::sys_days firstOfMonth{std::chrono::year{year} /
                                           std::chrono::month{static_cast<unsigned>(month)} /
                                           std::chrono::day{1}};
  const double dayNumber = static_cast<double>(firstOfMonth.time_since_epoch().count()) +
                           static_cast<double>(time.day) - 1;
  return {dayNumber * 86400.0 + time.hour * 3600.0 + time.minute * 60.0 + time.second};
}

}  // namespace model
