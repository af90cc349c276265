// SPDX-License-Identifier: MIT
#include "media/facts/location.h"

#include <gtest/gtest.h>

#include <cmath>

namespace media::facts {
namespace {

using model::Dictionary;
using model::Location;

Dictionary withGps(Dictionary gps) {
  return {{"{GPS}", std::move(gps)}};
}

TEST(Location, TakesTheSignsFromTheReferences) {
  struct Case {
    const char* latitudeRef;
    const char* longitudeRef;
    Location location;
  };
  const Case cases[] = {{"N", "E", {48.85, 2.35}},
                        {"N", "W", {48.85, -2.35}},
                        {"S", "E", {-48.85, 2.35}},
                        {"S", "W", {-48.85, -2.35}}};
  for (const Case& item : cases) {
    const auto properties = withGps({{"Latitude", 48.85},
                                     {"LatitudeRef", item.latitudeRef},
                                     {"Longitude", 2.35},
                                     {"LongitudeRef", item.longitudeRef}});
    EXPECT_EQ(locationOfProperties(properties), item.location)
        << item.latitudeRef << item.longitudeRef;
  }
}

TEST(Location, NeedsNoReferenceAndTakesIntegers) {
  EXPECT_EQ(locationOfProperties(withGps({{"Latitude", -10}, {"Longitude", 20}})),
            (Location{-10, 20}));
}

TEST(Location, IsNoneWithoutBothCoordinatesOnEarth) {
  const Dictionary refused[] = {
      {},
      {{"{GPS}", "text"}},
      withGps({{"Latitude", 1.0}}),
      withGps({{"Longitude", 1.0}}),
      withGps({{"Latitude", "1"}, {"Longitude", 1.0}}),
      withGps({{"Latitude", 90.5}, {"Longitude", 1.0}}),
      withGps({{"Latitude", 1.0}, {"Longitude", 181.0}}),
      withGps({{"Latitude", std::nan("")}, {"Longitude", 1.0}}),
  };
  for (const Dictionary& properties : refused) {
    EXPECT_EQ(locationOfProperties(properties), std::nullopt) << properties.size();
  }
}

TEST(Location, ReadsIso6709InAllItsPrecisions) {
  const std::pair<std::string_view, Location> cases[] = {
      {"+48.8577+002.2950+035.000/", {48.8577, 2.295}},
      {"+48.8577+002.2950/", {48.8577, 2.295}},
      {"-33.8568+151.2153", {-33.8568, 151.2153}},
      {"+48.8577-002.2950+035.000CRSWGS_84/", {48.8577, -2.295}},
      {"+4830+00215/", {48.5, 2.25}},
      {"-4830.6-00215.6/", {-48.51, -2.26}},
      {"+483036+0021536/", {48.51, 2.26}},
      {"-483036.0+0021536.0/", {-48.51, 2.26}},
      {"+0.0+0.0/", {0, 0}},
      {"+8+002/", {8, 2}},
  };
  for (const auto& [text, location] : cases) {
    const auto read = locationOfIso6709(text);
    ASSERT_TRUE(read) << text;
    EXPECT_NEAR(read->latitude, location.latitude, 1e-9) << text;
    EXPECT_NEAR(read->longitude, location.longitude, 1e-9) << text;
  }
}

TEST(Location, RefusesTextThatIsNoIso6709) {
  for (const std::string_view text :
       {"", "+", "+48.8577", "48.8577+002.2950/", "+48.8577,+002.2950", "+-", "+91+000/",
        "+00+181/", "Paris", "+48.8577 +002.2950"}) {
    EXPECT_EQ(locationOfIso6709(text), std::nullopt) << text;
  }
}

TEST(Location, OfAVideoIsTheFirstThatReads) {
  const model::MediaAsset asset{.tracks = {},
                                .commonMetadata = {{"title", "+1+1/"},
                                                   {std::nullopt, "+2+2/"},
                                                   {"location", std::nullopt},
                                                   {"location", 5},
                                                   {"location", "nowhere"},
                                                   {"location", "+10+020/"}},
                                .duration = 0,
                                .creationDate = std::nullopt};
  EXPECT_EQ(locationOfAsset(asset), (Location{10, 20}));
  EXPECT_EQ(locationOfAsset({}), std::nullopt);
}

TEST(Location, NamesThePlaceFromWhatIsThere) {
  const auto placeOf = [](Dictionary iptc) {
    return placeOfProperties({{"{IPTC}", std::move(iptc)}});
  };
  EXPECT_EQ(placeOf({{"City", "Paris"},
                     {"Province/State", "\u00cele-de-France"},
                     {"Country/PrimaryLocationName", "France"}}),
            "Paris, \u00cele-de-France, France");
  EXPECT_EQ(placeOf({{"City", "Paris"}, {"Country/PrimaryLocationName", "France"}}),
            "Paris, France");
  EXPECT_EQ(placeOf({{"City", ""}, {"Province/State", "Bavaria"}}), "Bavaria");
  EXPECT_EQ(placeOf({{"City", 5}}), std::nullopt);
  EXPECT_EQ(placeOf({}), std::nullopt);
  EXPECT_EQ(placeOfProperties({}), std::nullopt);
}

}  // namespace
}  // namespace media::facts
