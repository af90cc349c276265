// SPDX-License-Identifier: MIT
#include "foundation/date_text.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "tests/foundation/environment.h"

namespace foundation {
namespace {

constexpr model::Date september{1538308991};  // 2018-09-30 12:03:11 UTC

TEST(DateTextTest, followsTheLocale) {
  const ScopedVariable zone("TZ", "Europe/Berlin");
  const struct {
    std::string_view locale;
    std::string medium;
    std::string shortForm;
  } cases[] = {
      {"en_US", "Sep 30, 2018 at 2:03:11 PM", "9/30/18, 2:03:11 PM"},
      {"C", "Sep 30, 2018 at 2:03:11 PM", "9/30/18, 2:03:11 PM"},
      {"en", "Sep 30, 2018 at 2:03:11 PM", "9/30/18, 2:03:11 PM"},
      {"en_GB", "30 Sep 2018 at 14:03:11", "30/09/2018, 14:03:11"},
      {"de_DE", "30.09.2018, 14:03:11", "30.09.18, 14:03:11"},
      {"ja_JP", "2018/09/30 14:03:11", "2018/09/30 14:03:11"},
      {"fr_FR", "30 sept. 2018 à 14:03:11", "30/09/2018 14:03:11"},
      {"vi_VN", "14:03:11 30 thg 9, 2018", "14:03:11 30/09/2018"},
  };
  for (const auto& row : cases) {
    const Locale locale(row.locale);
    EXPECT_EQ(dateText(september, DateStyle::mediumDate, locale), row.medium) << row.locale;
    EXPECT_EQ(dateText(september, DateStyle::shortDate, locale), row.shortForm) << row.locale;
  }
}

TEST(DateTextTest, wordsAmericanDatesExactly) {
  const ScopedVariable zone("TZ", "UTC");
  const struct {
    double secondsSince1970;
    std::string_view medium;
    std::string_view shortForm;
  } cases[] = {
      {0, "Jan 1, 1970 at 12:00:00 AM", "1/1/70, 12:00:00 AM"},
      {978307200, "Jan 1, 2001 at 12:00:00 AM", "1/1/01, 12:00:00 AM"},
      {978350400.999, "Jan 1, 2001 at 12:00:00 PM", "1/1/01, 12:00:00 PM"},
      {951827696, "Feb 29, 2000 at 12:34:56 PM", "2/29/00, 12:34:56 PM"},
      {-1, "Dec 31, 1969 at 11:59:59 PM", "12/31/69, 11:59:59 PM"},
      {-62135596800, "Jan 1, 1 at 12:00:00 AM", "1/1/01, 12:00:00 AM"},
      {253402300799, "Dec 31, 9999 at 11:59:59 PM", "12/31/99, 11:59:59 PM"},
  };
  for (const auto& row : cases) {
    const model::Date date{row.secondsSince1970};
    EXPECT_EQ(dateText(date, DateStyle::mediumDate, Locale()), row.medium);
    EXPECT_EQ(dateText(date, DateStyle::shortDate, Locale()), row.shortForm);
  }
}

TEST(DateTextTest, localeDataAgreesWithTheFixedAmericanForm) {
  for (const char* name : {"America/Los_Angeles", "Asia/Kathmandu", "CET-1CEST,M3.5.0,M10.5.0/3"}) {
    const ScopedVariable zone("TZ", name);
    for (int day = 0; day < 800; ++day) {
      const model::Date date{1514764800 + day * 90000.0};
      for (const auto style : {DateStyle::shortDate, DateStyle::mediumDate}) {
        EXPECT_EQ(dateText(date, style, Locale("en")), dateText(date, style, Locale("en_US")));
      }
    }
  }
}

TEST(DateTextTest, neverHoldsANarrowBlank) {
  const ScopedVariable zone("TZ", "UTC");
  for (const char* name : {"en", "en_AU", "en_CA", "en_IN", "es_MX", "hi", "ko", "ar"}) {
    const std::string text = dateText(september, DateStyle::mediumDate, Locale(name));
    EXPECT_EQ(text.find("\xE2\x80\xAF"), std::string::npos) << name << ": " << text;
  }
}

TEST(DateTextTest, anUnknownLanguageReadsAsAmericanEnglish) {
  const ScopedVariable zone("TZ", "UTC");
  EXPECT_EQ(dateText(september, DateStyle::mediumDate, Locale("qq_QQ")),
            "Sep 30, 2018 at 12:03:11 PM");
}

TEST(DateTextTest, mayBeAskedFromSeveralThreads) {
  const ScopedVariable zone("TZ", "Europe/Berlin");
  std::vector<std::string> texts(4);
  std::vector<std::thread> threads;
  threads.reserve(texts.size());
  for (std::string& text : texts) {
    threads.emplace_back([&text] {
      for (int round = 0; round < 50; ++round) {
        text = dateText(september, DateStyle::mediumDate, Locale("de"));
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (const std::string& text : texts) EXPECT_EQ(text, "30.09.2018, 14:03:11");
}

}  // namespace
}  // namespace foundation
