// SPDX-License-Identifier: MIT
#include "lumifact/details/map_link.h"

#include <gtest/gtest.h>

#include <limits>

namespace lumifact {
namespace {

const std::string coordinates = "37.331700,-122.030200";
const std::string webFront = "http://" LUMIFACT_WEB_MAP_HOST "/?q=Lumifact&ll=";
const std::string applicationFront = "comgooglemaps://?center=";

Settings settingsWith(std::int32_t mapType, double zoom, std::int32_t viewType) {
  Settings settings;
  settings.mapType = mapType;
  settings.mapZoomLevel = zoom;
  settings.mapViewType = viewType;
  return settings;
}

TEST(MapLinkTest, followsTheSettings) {
  const struct {
    std::int32_t mapType;
    std::int32_t viewType;
    double zoom;
    std::string expected;
  } cases[] = {
      {1, 2, 19.0, applicationFront + coordinates + "&zoom=19.00&views=satellite"},
      {1, 0, 0.0, applicationFront + coordinates},
      {0, 3, 12.5, webFront + coordinates + "&t=r"},
      {1, 3, 12.5, applicationFront + coordinates + "&zoom=12.50&views=transit"},
      {1, 2, 0.0, applicationFront + coordinates + "&views=satellite"},
      {1, 0, -1.0, applicationFront + coordinates + "&zoom=-1.00"},
      {1, 0, 0.004, applicationFront + coordinates + "&zoom=0.00"},
      {1, 0, 17.126, applicationFront + coordinates + "&zoom=17.13"},
      {0, 0, 19.0, webFront + coordinates},
      {0, 1, 0.0, webFront + coordinates + "&t=m"},
      {0, 2, 0.0, webFront + coordinates + "&t=k"},
      // Any other service is the web's, any other kind of map is none.
      {2, 2, 19.0, webFront + coordinates + "&t=k"},
      {-1, 0, 19.0, webFront + coordinates},
      {0, 4, 0.0, webFront + coordinates},
      {0, -1, 0.0, webFront + coordinates},
      {1, 4, 0.0, applicationFront + coordinates},
  };
  for (const auto& row : cases) {
    EXPECT_EQ(
        buildMapLink(coordinates, std::nullopt, settingsWith(row.mapType, row.zoom, row.viewType)),
        row.expected)
        << "mapType " << row.mapType << ", zoom " << row.zoom << ", view " << row.viewType;
  }
}

TEST(MapLinkTest, viewTypeOneInTheApplicationIsAnEmptyValue) {
  EXPECT_EQ(buildMapLink(coordinates, std::nullopt, settingsWith(1, 0.0, 1)),
            applicationFront + coordinates + "&views=");
}

TEST(MapLinkTest, theReportsCoordinatesWinOverTheAssetsLocation) {
  const model::Location elsewhere{.latitude = 1, .longitude = 2};
  EXPECT_EQ(buildMapLink(coordinates, elsewhere, settingsWith(0, 0, 0)), webFront + coordinates);
}

TEST(MapLinkTest, theReportsCoordinatesAreUsedVerbatim) {
  EXPECT_EQ(buildMapLink("48.85,-2.35", std::nullopt, settingsWith(0, 0, 0)),
            webFront + "48.85,-2.35");
  EXPECT_EQ(buildMapLink("any text & more %", std::nullopt, settingsWith(0, 0, 0)),
            webFront + "any text & more %");
}

TEST(MapLinkTest, anEmptyCoordinateTextCountsAsGiven) {
  EXPECT_EQ(buildMapLink("", model::Location{1, 2}, settingsWith(0, 0, 0)), webFront);
}

TEST(MapLinkTest, theAssetsLocationHasSixDecimals) {
  const struct {
    model::Location location;
    std::string expected;
  } cases[] = {
      {{37.3317, -122.0302}, "37.331700,-122.030200"},
      {{0, 0}, "0.000000,0.000000"},
      {{-33.8568, 151.2153}, "-33.856800,151.215300"},
      {{0.1234567, -0.0000004}, "0.123457,-0.000000"},
      {{std::numeric_limits<double>::quiet_NaN(), 1}, "nan,1.000000"},
  };
  for (const auto& row : cases) {
    EXPECT_EQ(buildMapLink(std::nullopt, row.location, settingsWith(0, 0, 0)),
              webFront + row.expected)
        << row.expected;
  }
}

TEST(MapLinkTest, withoutAPlaceThereIsNoLink) {
  EXPECT_EQ(buildMapLink(std::nullopt, std::nullopt, settingsWith(1, 19, 2)), std::nullopt);
}

TEST(MapLinkTest, aMissingSettingsFileOpensTheWebMapWithoutAZoom) {
  EXPECT_EQ(buildMapLink(coordinates, std::nullopt, Settings{}), webFront + coordinates);
}

}  // namespace
}  // namespace lumifact
