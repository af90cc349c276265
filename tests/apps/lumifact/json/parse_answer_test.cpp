// SPDX-License-Identifier: MIT
#include "apps/lumifact/json/parse_answer.h"

#include <gtest/gtest.h>

namespace lumifact::tool {
namespace {

std::string answer(ParseKind kind, std::string_view json) {
  const auto result = parseAnswer(kind, json);
  return result ? *result : errorAnswer(result.error().reason);
}

constexpr std::string_view turnedPhoto =
    R"({"Orientation": 6, "DPIWidth": 72.0, "HasAlpha": true, "{GPS}": {"Latitude": 48.85, )"
    R"("LatitudeRef": "N", "Longitude": 2.35, "LongitudeRef": "W"}})";

constexpr std::string_view turnedPhotoAnswer =
    R"*({"text":"\nDPIWidth = 72\nHasAlpha = 1\nOrientation = 90° CW - Portrait (6)\n\n{GPS} =)*"
    R"*(\n{\n  Latitude = 48.85\n  LatitudeRef = N\n  Longitude = -2.35\n  LongitudeRef = W\n}",)*"
    R"*("table":{"DPIWidth":72.0,"HasAlpha":true,"Orientation":"90° CW - Portrait (6)","{GPS}":)*"
    R"*({"Latitude":48.85,"LatitudeRef":"N","Longitude":2.35,"LongitudeRef":"W"}},)*"
    R"*("coordinates":"48.85,-2.35"})*";

TEST(ParseAnswer, OfAnImageHoldsTextTableAndCoordinates) {
  EXPECT_EQ(answer(ParseKind::image, turnedPhoto), turnedPhotoAnswer);
  EXPECT_EQ(answer(ParseKind::image, "{}"), R"({"text":"","table":{},"coordinates":null})");
}

TEST(ParseAnswer, OfAVideoHasNoTable) {
  EXPECT_EQ(answer(ParseKind::video, "null"), R"({"text":"","coordinates":null})");
  EXPECT_EQ(
      answer(
          ParseKind::video,
          R"({"commonMetadata": [{"commonKey": "location", "value": "+48.8577+002.2950+035.000/"},)"
          R"( {"commonKey": "make", "value": "Apple"}]})"),
      R"({"text":"make = Apple\nlatitude = +48.8577\nlongitude = +002.2950\naltitude = +035.000\n",)"
      R"("coordinates":"+48.8577,+002.2950"})");
}

TEST(ParseAnswer, OfAVideoTrackShowsWhatItsFieldsSay) {
  const std::string text = answer(
      ParseKind::video,
      R"({"tracks": [{"trackID": 1, "mediaType": "vide", "formatDescriptions": [{"mediaType": "vide",)"
      R"( "mediaSubType": "avc1", "width": 1920, "height": 1080}], "naturalSize": [1920, 1080],)"
      R"( "preferredTransform": [0, 1, -1, 0], "duration": 2, "estimatedDataRate": 8000000,)"
      R"( "nominalFrameRate": 29.97, "minFrameDuration": 0.04}]})");
  for (const char* part : {R"(Codec = avc1\n)", R"(Dimensions         = 1920 x 1080)",
                           R"(Dimensions Rotated = 1080 x 1920)", "Rotation = 90.00°",
                           "Data Rate = 8.000 Mbps", "Maximum Frame Rate = 25.000 fps"}) {
    EXPECT_NE(text.find(part), std::string::npos) << part << " in " << text;
  }
}

TEST(ParseAnswer, TellsWhatCannotBeRead) {
  EXPECT_EQ(answer(ParseKind::image, "null"), R"({"error":"not an object of image properties"})");
  EXPECT_EQ(answer(ParseKind::image, "[]"), R"({"error":"not an object of image properties"})");
  EXPECT_EQ(answer(ParseKind::video, "[]"), R"({"error":"asset is no object"})");
  EXPECT_TRUE(answer(ParseKind::image, "").starts_with(R"({"error":"parse error)"));
  EXPECT_TRUE(answer(ParseKind::video, "{").starts_with(R"({"error":"parse error)"));
}

}  // namespace
}  // namespace lumifact::tool
