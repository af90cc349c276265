// SPDX-License-Identifier: MIT
#include "apps/lumifact/json/media_asset_json.h"

#include <gtest/gtest.h>

#include "apps/lumifact/json/json.h"

namespace lumifact::tool {
namespace {

model::Result<std::optional<model::MediaAsset>> assetOf(std::string_view json) {
  const auto tree = parseJson(json);
  if (!tree) return tree.error();
  return assetOfTree(*tree);
}

model::MediaAsset sampleAsset() {
  model::FormatDescription video{.mediaType = model::fourCharCode("vide"),
                                 .mediaSubType = model::fourCharCode("avc1"),
                                 .width = 1920,
                                 .height = 1080,
                                 .audio = std::nullopt,
                                 .extensions = {{"Depth", 24}, {"FullRangeVideo", false}}};
  model::FormatDescription sound{
      .mediaType = model::fourCharCode("soun"),
      .mediaSubType = 0x6D730011,
      .audio = model::AudioStreamDescription{.sampleRate = 44100,
                                             .formatID = model::fourCharCode("aac "),
                                             .formatFlags = 0xFFFFFFFF,
                                             .bytesPerPacket = 1,
                                             .framesPerPacket = 1024,
                                             .bytesPerFrame = 2,
                                             .channelsPerFrame = 3,
                                             .bitsPerChannel = 16},
      .extensions = {}};
  model::Track track{.trackID = 7,
                     .mediaType = "vide",
                     .formatDescriptions = {video, sound},
                     .naturalSize = {1920, 1080},
                     .preferredTransform = {0, 1, -1, 0, 0, 0},
                     .duration = 75.25,
                     .estimatedDataRate = 1558545.25F,
                     .nominalFrameRate = 29.97F,
                     .minFrameDuration = 1001.0 / 30000,
                     .commonMetadata = {{"title", "x"}, {std::nullopt, 3}, {"artist", {}}}};
  return {.tracks = {track},
          .commonMetadata = {{"location", "+48.8577+002.2950/"}},
          .duration = 75.5,
          .creationDate = model::Date{1538309591}};
}

TEST(MediaAssetJson, WhatIsWrittenReadsBackTheSame) {
  std::string json;
  appendJson(json, treeOfAsset(sampleAsset()));
  const auto read = assetOf(json);
  ASSERT_TRUE(read && *read) << json;
  EXPECT_EQ(**read, sampleAsset()) << json;
}

TEST(MediaAssetJson, WritesCodesAsTextWhereTheyAreReadable) {
  std::string json;
  appendJson(json, treeOfAsset(sampleAsset()));
  EXPECT_NE(json.find(R"("formatID":"aac ")"), std::string::npos) << json;
  EXPECT_NE(json.find(R"("mediaSubType":1836253201)"), std::string::npos) << json;
  EXPECT_NE(json.find(R"("nominalFrameRate":29.97)"), std::string::npos) << json;
}

TEST(MediaAssetJson, NullIsAnAbsentAsset) {
  const auto read = assetOf("null");
  ASSERT_TRUE(read);
  EXPECT_FALSE(*read);
}

TEST(MediaAssetJson, MissingAndNullFieldsHaveTheirDefaults) {
  const auto empty = assetOf(R"({"other": 1})");
  ASSERT_TRUE(empty && *empty);
  EXPECT_EQ(**empty, model::MediaAsset());
  const auto nulls = assetOf(
      R"({"tracks": [{"trackID": null, "minFrameDuration": null, "commonMetadata": null}]})");
  ASSERT_TRUE(nulls && *nulls);
  EXPECT_EQ((**nulls).tracks, std::vector<model::Track>(1));
}

TEST(MediaAssetJson, ReadsCodesAsTextOrNumber) {
  const std::pair<std::string_view, model::FourCharCode> codes[] = {
      {R"("avc1")", 0x61766331},      {"1635148593", 0x61766331},
      {R"("\u00a9nam")", 0xA96E616D}, {R"("ms\u0000\u0011")", 0x6D730011},
      {R"("ab")", 0x61620000},        {R"("")", 0},
  };
  for (const auto& [json, code] : codes) {
    const auto read = assetOf(R"({"tracks":[{"formatDescriptions":[{"mediaSubType":)" +
                              std::string(json) + "}]}]}");
    ASSERT_TRUE(read && *read) << json;
    EXPECT_EQ((**read).tracks[0].formatDescriptions[0].mediaSubType, code) << json;
  }
}

TEST(MediaAssetJson, ReadsATransformWithOrWithoutItsTranslation) {
  const auto read = assetOf(
      R"({"tracks":[{"preferredTransform":[0,1,-1,0]},{"preferredTransform":[0,1,-1,0,5,6.5]}]})");
  ASSERT_TRUE(read && *read);
  EXPECT_EQ((**read).tracks[0].preferredTransform, (model::AffineTransform{0, 1, -1, 0, 0, 0}));
  EXPECT_EQ((**read).tracks[1].preferredTransform, (model::AffineTransform{0, 1, -1, 0, 5, 6.5}));
}

TEST(MediaAssetJson, RefusesFieldsOfAWrongKindByName) {
  const std::pair<std::string_view, std::string_view> refused[] = {
      {"[]", "asset is no object"},
      {"5", "asset is no object"},
      {R"({"tracks": 5})", "tracks is no list"},
      {R"({"tracks": [5]})", "track is no object"},
      {R"({"tracks": [{"trackID": "a"}]})", "trackID is no number"},
      {R"({"tracks": [{"mediaType": 1}]})", "mediaType is no string"},
      {R"({"tracks": [{"naturalSize": [1]}]})", "naturalSize is no list of 2 numbers"},
      {R"({"tracks": [{"naturalSize": [1, "b"]}]})", "naturalSize is no list of 2 numbers"},
      {R"({"tracks": [{"preferredTransform": [1,2,3]}]})",
       "preferredTransform is no list of 4 numbers"},
      {R"({"tracks": [{"formatDescriptions": [{"mediaType": "video"}]}]})",
       "mediaType is no four-character code"},
      {R"({"tracks": [{"formatDescriptions": [{"mediaType": "\u20ac"}]}]})",
       "mediaType is no four-character code"},
      {R"({"tracks": [{"formatDescriptions": [{"audio": 1}]}]})", "audio is no object"},
      {R"({"tracks": [{"formatDescriptions": [{"extensions": []}]}]})", "extensions is no object"},
      {R"({"commonMetadata": [{"commonKey": 1}]})", "commonKey is no string"},
      {R"({"creationDate": "2018"})", "creationDate is no date"},
  };
  for (const auto& [json, reason] : refused) {
    const auto read = assetOf(json);
    ASSERT_FALSE(read) << json;
    EXPECT_EQ(read.error().reason, reason) << json;
  }
}

}  // namespace
}  // namespace lumifact::tool
