// SPDX-License-Identifier: MIT
#include "foundation/calendar_text.h"

#include <gtest/gtest.h>

#include <string_view>

namespace foundation {
namespace {

TEST(CalendarTextTest, followsTheLocale) {
  constexpr model::CivilTime time{2018, 9, 30, 14, 3, 11};
  const struct {
    std::string_view locale;
    std::string_view day;
    std::string_view month;
    std::string_view year;
  } cases[] = {
      {"en_US", "Sep 30, 2018", "September 2018", "2018"},
      {"C", "Sep 30, 2018", "September 2018", "2018"},
      {"en", "Sep 30, 2018", "September 2018", "2018"},
      {"en_GB", "30 Sep 2018", "September 2018", "2018"},
      {"de_DE", "30.09.2018", "September 2018", "2018"},
      {"fr_FR", "30 sept. 2018", "septembre 2018", "2018"},
      {"ja_JP", "2018/09/30", "2018年9月", "2018年"},
      {"xx_XX", "Sep 30, 2018", "September 2018", "2018"},
  };
  for (const auto& row : cases) {
    const Locale locale(row.locale);
    EXPECT_EQ(calendarText(time, CalendarUnit::day, locale), row.day) << row.locale;
    EXPECT_EQ(calendarText(time, CalendarUnit::month, locale), row.month) << row.locale;
    EXPECT_EQ(calendarText(time, CalendarUnit::year, locale), row.year) << row.locale;
  }
}

TEST(CalendarTextTest, writesTheFirstAndTheLastYear) {
  EXPECT_EQ(calendarText({1, 1, 1}, CalendarUnit::day, Locale()), "Jan 1, 1");
  EXPECT_EQ(calendarText({9999, 12, 31}, CalendarUnit::day, Locale()), "Dec 31, 9999");
  EXPECT_EQ(calendarText({1970, 5, 1}, CalendarUnit::month, Locale()), "May 1970");
}

}  // namespace
}  // namespace foundation
