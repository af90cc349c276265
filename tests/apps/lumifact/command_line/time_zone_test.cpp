// SPDX-License-Identifier: MIT
#include "apps/lumifact/command_line/time_zone.h"

#include <gtest/gtest.h>

#include <filesystem>

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

}  // namespace
}  // namespace lumifact::tool
