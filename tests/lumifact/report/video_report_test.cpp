// SPDX-License-Identifier: MIT
#include "lumifact/report/video_report.h"

#include <gtest/gtest.h>

namespace lumifact {
namespace {

using model::MediaAsset;
using model::MetadataItem;

struct Report {
  std::string text;
  std::optional<std::string> coordinates;
};

Report reportOf(const std::vector<MetadataItem>& metadata, int tracks = 0) {
  MediaAsset asset;
  asset.commonMetadata = metadata;
  for (int index = 1; index <= tracks; ++index) {
    model::Track track;
    track.trackID = index;
    track.mediaType = "text";
    asset.tracks.push_back(track);
  }
  Report report;
  report.text = videoReport(asset, report.coordinates, model::compareKeys);
  return report;
}

TEST(VideoReport, OfNothingIsEmpty) {
  EXPECT_EQ(reportOf({}).text, "");
}

TEST(VideoReport, PutsLaterMetadataFirst) {
  EXPECT_EQ(reportOf({{"make", "Apple"}, {"model", "iPhone 8"}}).text,
            "model = iPhone 8\nmake = Apple\n");
}

TEST(VideoReport, PutsMetadataAboveTheTracksInTheirOrder) {
  EXPECT_EQ(reportOf({{"make", "Apple"}}, 2).text,
            "make = Apple\n"
            "\nAVAssetTrack\n{\n  trackID = 1\n  MediaType = text\n}\n"
            "\nAVAssetTrack\n{\n  trackID = 2\n  MediaType = text\n}\n");
}

TEST(VideoReport, SplitsALocationWithAltitude) {
  const Report report =
      reportOf({{"make", "Apple"}, {"location", "+48.8577+002.2950+035.000/"}}, 1);
  EXPECT_EQ(report.coordinates, "+48.8577,+002.2950");
  EXPECT_EQ(report.text,
            "latitude = +48.8577\nlongitude = +002.2950\naltitude = +035.000\nmake = Apple\n"
            "\nAVAssetTrack\n{\n  trackID = 1\n  MediaType = text\n}\n");
}

TEST(VideoReport, ShowsALocationWithoutAltitudeAsItIs) {
  const Report report = reportOf({{"location", "+48.8577+002.2950/"}});
  EXPECT_EQ(report.coordinates, std::nullopt);
  EXPECT_EQ(report.text, "location = +48.8577+002.2950/\n");
}

TEST(VideoReport, ReadsALocationFromTheTextOfAnyValue) {
  EXPECT_EQ(reportOf({{"location", model::Array{"+1+2+3/"}}}).coordinates, "+1,+2");
  EXPECT_EQ(reportOf({{"location", 5}}).text, "location = 5\n");
}

TEST(VideoReport, LooksForCoordinatesOnlyInTheLocation) {
  const Report report = reportOf({{"Location", "+1+2+3/"}, {"description", "+1+2+3/"}});
  EXPECT_EQ(report.coordinates, std::nullopt);
  EXPECT_EQ(report.text, "description = +1+2+3/\nLocation = +1+2+3/\n");
}

TEST(VideoReport, KeepsTheCoordinatesOfTheLastLocation) {
  const Report report = reportOf({{"location", "+1+2+3/"}, {"location", "+4+5+6/"}});
  EXPECT_EQ(report.coordinates, "+4,+5");
  EXPECT_EQ(report.text,
            "latitude = +4\nlongitude = +5\naltitude = +6\n"
            "latitude = +1\nlongitude = +2\naltitude = +3\n");
}

TEST(VideoReport, LeavesOutMetadataWithoutKeyOrValue) {
  EXPECT_EQ(
      reportOf({{std::nullopt, "x"}, {"a", std::nullopt}, {"b", model::Value()}, {"c", ""}}).text,
      "c = \n");
}

TEST(VideoReport, DescribesValuesThatAreNoStrings) {
  EXPECT_EQ(reportOf({{"year", 2018},
                      {"rate", 0.5},
                      {"created", model::Date{1538309391}},
                      {"artwork", model::Data{0xff, 0xd8}}})
                .text,
            "artwork = <ffd8>\ncreated = 2018-09-30 12:09:51 +0000\nrate = 0.5\nyear = 2018\n");
}

TEST(VideoReport, DescribesAHundredThousandItems) {
  const Report report = reportOf(std::vector<MetadataItem>(100000, {"make", "Apple"}));
  EXPECT_EQ(report.text.size(), 100000 * std::string_view("make = Apple\n").size());
}

}  // namespace
}  // namespace lumifact
