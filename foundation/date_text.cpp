// SPDX-License-Identifier: MIT
#include "foundation/date_text.h"

#include <array>
#include <string_view>

#include "foundation/locale_data.h"
#include "model/number_text.h"

namespace foundation {

namespace {

constexpr std::array<std::string_view, 12> shortMonthNames = {
    "Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

std::string twoDigits(int number) {
  return model::paddedIntegerText(number, 2);
}

// "MMM d, y"
std::string mediumDate(const model::CivilTime& time) {
  std::string text(shortMonthNames[static_cast<std::size_t>(time.month - 1)]);
  text.append(" ").append(model::integerText(time.day));
  return text.append(", ").append(model::integerText(time.year));
}

// "M/d/yy"
std::string shortDate(const model::CivilTime& time) {
  return model::integerText(time.month) + "/" + model::integerText(time.day) + "/" +
         twoDigits(time.year % 100);
}

// "h:mm:ss a"
std::string mediumTime(const model::CivilTime& time) {
  const int hour = time.hour % 12 == 0 ? 12 : time.hour % 12;
  return model::integerText(hour) + ":" + twoDigits(time.minute) + ":" + twoDigits(time.second) +
         (time.hour < 12 ? " AM" : " PM");
}

std::string americanText(const model::CivilTime& time, DateStyle style) {
  return style == DateStyle::mediumDate ? mediumDate(time) + " at " + mediumTime(time)
                                        : shortDate(time) + ", " + mediumTime(time);
}

}  // namespace

std::string dateText(model::Date date, DateStyle style, const Locale& locale) {
  const model::CivilTime time = localTime(date);
  if (locale.isEnUS()) return americanText(time, style);
  const LocaleData* data = localeData();
  const auto text = data ? data->dateText(time, style, locale) : std::nullopt;
  return text.value_or(americanText(time, style));
}

}  // namespace foundation
