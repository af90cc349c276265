// SPDX-License-Identifier: MIT
#include "media/facts/capture_date.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

namespace media::facts {
namespace {

using model::Date;
using model::Dictionary;

constexpr double afternoon = 1538316191;  // 2018-09-30 14:03:11 UTC

// Puts the process into a time zone for the time of a test.
class CaptureDate : public testing::Test {
 protected:
  void SetUp() override { useZone("UTC-2"); }  // two hours ahead, by the POSIX sign
  void TearDown() override {
    ::unsetenv("TZ");
    ::tzset();
  }
  static void useZone(const char* zone) {
    ::setenv("TZ", zone, 1);
    ::tzset();
  }
};

Dictionary takenAt(model::Value text) {
  return {{"{Exif}", Dictionary{{"DateTimeOriginal", std::move(text)}}}};
}

TEST_F(CaptureDate, OfAPhotoFollowsItsOffset) {
  const Dictionary properties = takenAt("2018:09:30 14:03:11");
  EXPECT_EQ(captureDateOfProperties(properties, "+00:00"), Date{afternoon});
  EXPECT_EQ(captureDateOfProperties(properties, "+05:30"), Date{afternoon - 19800});
  EXPECT_EQ(captureDateOfProperties(properties, "-08:00"), Date{afternoon + 28800});
}

TEST_F(CaptureDate, OfAPhotoWithoutAnOffsetIsLocal) {
  const Dictionary properties = takenAt("2018:09:30 14:03:11");
  EXPECT_EQ(captureDateOfProperties(properties, std::nullopt), Date{afternoon - 7200});
  for (const char* offset : {"", "   :  ", "05:30", "+5", "+25:00", "+05:61"}) {
    EXPECT_EQ(captureDateOfProperties(properties, offset), Date{afternoon - 7200}) << offset;
  }
  useZone("UTC");
  EXPECT_EQ(captureDateOfProperties(properties, std::nullopt), Date{afternoon});
}

TEST_F(CaptureDate, OfAPhotoIsNoneWhereTheTextIsNoDate) {
  for (const char* text : {"", "0000:00:00 00:00:00", "    :  :     :  :  ", "2018:13:01 00:00:00",
                           "2018:02:30 00:00:00", "2018:09:30", "2018-09-30 14:03:11",
                           "2018:09:30 24:00:00", "2018:09:30 14:03:1x"}) {
    EXPECT_EQ(captureDateOfProperties(takenAt(text), "+00:00"), std::nullopt) << text;
  }
  EXPECT_EQ(captureDateOfProperties(takenAt(5), "+00:00"), std::nullopt);
  EXPECT_EQ(captureDateOfProperties({}, "+00:00"), std::nullopt);
  EXPECT_EQ(captureDateOfProperties({{"{Exif}", 1}}, "+00:00"), std::nullopt);
}

TEST_F(CaptureDate, ReadsTheFormsThatMoviesUse) {
  const std::pair<std::string_view, double> cases[] = {
      {"2018-09-30T14:03:11Z", afternoon},
      {"2018-09-30T14:03:11+0200", afternoon - 7200},
      {"2018-09-30T14:03:11+02:00", afternoon - 7200},
      {"2018-09-30T14:03:11-08", afternoon + 28800},
      {"2018-09-30T14:03:11.250Z", afternoon},
      {"2018-09-30 14:03:11", afternoon - 7200},
  };
  for (const auto& [text, seconds] : cases) {
    EXPECT_EQ(dateOfMovieText(text), Date{seconds}) << text;
  }
  for (const std::string_view text :
       {"", "2018", "2018-09-30", "2018-09-30X14:03:11Z", "yesterday"}) {
    EXPECT_EQ(dateOfMovieText(text), std::nullopt) << text;
  }
}

TEST_F(CaptureDate, OfAVideoPrefersItsMetadata) {
  model::MediaAsset asset;
  EXPECT_EQ(captureDateOfAsset(asset), std::nullopt);
  asset.creationDate = Date{5};
  EXPECT_EQ(captureDateOfAsset(asset), Date{5});
  asset.commonMetadata = {{"creationDate", "no date"}, {"creationDate", "2018-09-30T14:03:11Z"}};
  EXPECT_EQ(captureDateOfAsset(asset), Date{afternoon});
  asset.commonMetadata = {{"creationDate", Date{7}}};
  EXPECT_EQ(captureDateOfAsset(asset), Date{7});
}

}  // namespace
}  // namespace media::facts
