// SPDX-License-Identifier: MIT
#include "apps/lumifact/command_line/time_zone.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "foundation/local_time.h"

namespace lumifact::tool {
namespace {

TEST(TimeZone, KnowsZonesAndRules) {
  for (const char* name : {"UTC", "Europe/Berlin", "CET-1CEST", "UTC-2", "<+03>-3"}) {
    EXPECT_TRUE(timeZoneExists(name)) << name;
  }
}

TEST(TimeZone, RefusesOtherNames) {
  if (!std::filesystem::is_directory("/usr/share/zoneinfo")) {
    GTEST_SKIP() << "no data base to look names up in";
  }
  for (const char* name : {"", "Mars/Base", "Europe", "/etc/passwd", "../../etc/passwd", "X"}) {
    EXPECT_FALSE(timeZoneExists(name)) << name;
  }
}

TEST(TimeZone, BecomesThatOfTheProcess) {
  const char* variable = std::getenv("TZ");
  const std::string before = variable == nullptr ? "UTC" : variable;
  setTimeZone("CET-1");
  EXPECT_EQ(foundation::localTime({0}).hour, 1);
  setTimeZone("UTC-5");
  EXPECT_EQ(foundation::localTime({0}).hour, 5);
  setTimeZone(before);
}

}  // namespace
}  // namespace lumifact::tool
