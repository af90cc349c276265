// SPDX-License-Identifier: MIT
#include "samples/movies/movie_metadata.h"

#include <gtest/gtest.h>

namespace samples {
namespace {

TEST(MovieMetadata, SpellsLocationsInAllQuartersOfTheEarth) {
  struct {
    Place place;
    bool withAltitude;
    const char* expected;
  } const cases[] = {
      {{.latitude = 48.8577, .longitude = 2.295, .altitude = 35},
       true,
       "+48.8577+002.2950+035.000/"},
      {{.latitude = -33.84778, .longitude = 151.21222}, false, "-33.8478+151.2122/"},
      {{.latitude = 64.1, .longitude = -21.5, .altitude = -430.5},
       true,
       "+64.1000-021.5000-430.500/"},
      {{.latitude = -0.25, .longitude = -78.5, .altitude = 3058.2},
       true,
       "-00.2500-078.5000+3058.200/"},
  };
  for (const auto& each : cases)
    EXPECT_EQ(locationText(each.place, each.withAltitude), each.expected);
}

}  // namespace
}  // namespace samples
