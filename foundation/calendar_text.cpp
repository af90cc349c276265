// SPDX-License-Identifier: MIT
#include "foundation/calendar_text.h"

#include <array>
#include <string_view>

#include "foundation/locale_data.h"
#include "model/number_text.h"

namespace foundation {

namespace {

constexpr std::array<std::string_view, 12> monthNames = {
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};

std::string americanText(const model::CivilTime& time, CalendarUnit unit) {
  std::string year = model::integerText(time.year);
  const std::string_view month = monthNames[static_cast<std::size_t>(time.month - 1)];
  switch (unit) {
    case CalendarUnit::day:
      return std::string(month.substr(0, 3)) + " " + model::integerText(time.day) + ", " + year;
    case CalendarUnit::month:
      return std::string(month) + " " + year;
    case CalendarUnit::year:
      return year;
  }
  return {};
}

}  // namespace

std::string calendarText(const model::CivilTime& time, CalendarUnit unit, const Locale& locale) {
  if (locale.isEnUS()) return americanText(time, unit);
  const LocaleData* data = localeData();
  const auto text = data ? data->calendarText(time, unit, locale) : std::nullopt;
  return text.value_or(americanText(time, unit));
}

}  // namespace foundation
