// SPDX-License-Identifier: MIT
#include "media/movie/metadata/iso_date.h"

#include <gtest/gtest.h>

#include "media/movie/boxes/mac_roman.h"

namespace media::movie {
namespace {

TEST(IsoDate, ReadsMomentsOnly) {
  const struct {
    std::string_view text;
    std::optional<double> seconds;
  } cases[] = {
      {"2019-07-24T11:25:40+0300", 1563956740},
      {"2019-07-24T11:25:40+03:00", 1563956740},
      {"2019-07-24T11:25:40+03", 1563956740},
      {"2019-07-24T08:25:40Z", 1563956740},
      {"2019-07-24 08:25:40Z", 1563956740},
      {"2019-07-24T05:55:40.5-0230", 1563956740.5},
      {"2017-02-22T08:20:28.000000Z", 1487751628},
      {"1969-12-31T23:59:59Z", -1},
      {"2019-07-24T08:25:40", std::nullopt},
      {"2019-07-24", std::nullopt},
      {"2019", std::nullopt},
      {"", std::nullopt},
      {"2019-13-24T08:25:40Z", std::nullopt},
      {"2019-07-24T08:61:40Z", std::nullopt},
      {"2019-07-24T08:25:40Z and more", std::nullopt},
      {"Wed Jul 24 08:25:40 2019", std::nullopt},
  };
  for (const auto& row : cases) {
    const auto date = parseIsoDate(row.text);
    EXPECT_EQ(date ? std::optional(date->secondsSince1970) : std::nullopt, row.seconds) << row.text;
  }
}

TEST(MacRoman, ReadsTheUpperHalf) {
  EXPECT_EQ(macRomanToUtf8("ABC"), "ABC");
  EXPECT_EQ(macRomanToUtf8("\x80\x8A\xA7\xDB\xFF"), "Ääß€ˇ");
  EXPECT_EQ(utf8OrMacRoman("Ä\x8A"), "√Ñä");
  EXPECT_EQ(utf8OrMacRoman("Ää"), "Ää");
}

}  // namespace
}  // namespace media::movie
