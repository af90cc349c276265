// SPDX-License-Identifier: MIT
#include "lumifact/report/track_block.h"

#include <gtest/gtest.h>

#include <limits>

namespace lumifact {
namespace {

using model::AffineTransform;
using model::fourCharCode;
using model::Track;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

std::string blockOf(const Track& track) {
  std::string text;
  appendTrackBlock(text, track, model::compareKeys);
  return text;
}

Track videoTrack(const AffineTransform& transform) {
  Track track;
  track.trackID = 1;
  track.mediaType = "vide";
  track.formatDescriptions = {{.mediaType = fourCharCode("vide"),
                               .mediaSubType = fourCharCode("avc1"),
                               .width = 1920,
                               .height = 1080,
                               .audio = {},
                               .extensions = {}}};
  track.naturalSize = {1920, 1080};
  track.preferredTransform = transform;
  track.duration = 3.04333;
  track.estimatedDataRate = 15583000;
  track.nominalFrameRate = 29.97F;
  track.minFrameDuration = 1001.0 / 30000;
  return track;
}

Track soundTrack() {
  Track track;
  track.trackID = 2;
  track.mediaType = "soun";
  track.formatDescriptions = {{.mediaType = fourCharCode("soun"),
                               .mediaSubType = fourCharCode("mp4a"),
                               .width = 0,
                               .height = 0,
                               .audio = model::AudioStreamDescription{.sampleRate = 44100,
                                                                      .formatID = 0x61616320,
                                                                      .formatFlags = 1,
                                                                      .bytesPerPacket = 3,
                                                                      .framesPerPacket = 1024,
                                                                      .bytesPerFrame = 4,
                                                                      .channelsPerFrame = 2,
                                                                      .bitsPerChannel = 16},
                               .extensions = {}}};
  track.duration = 293.827;
  track.estimatedDataRate = 249088.91F;
  return track;
}

TEST(TrackBlock, ShowsAnUprightVideo) {
  EXPECT_EQ(blockOf(videoTrack({})), R"(AVAssetTrack
{
  trackID = 1
  MediaType = vide
  Duration = 3.04s
  Codec = avc1
  Dimensions = 1920 x 1080
  Rotation = 0.00°
  Data Rate = 15.583 Mbps
  Frame Rate         = 29.970 fps
  Maximum Frame Rate = 29.970 fps
})");
}

TEST(TrackBlock, ShowsTheSizeOfAQuarterTurn) {
  EXPECT_EQ(blockOf(videoTrack({.a = 0, .b = 1, .c = -1, .d = 0, .tx = 1080, .ty = 0})),
            R"(AVAssetTrack
{
  trackID = 1
  MediaType = vide
  Duration = 3.04s
  Codec = avc1
  Dimensions         = 1920 x 1080
  Dimensions Rotated = 1080 x 1920
  Rotation = 90.00°
  Data Rate = 15.583 Mbps
  Frame Rate         = 29.970 fps
  Maximum Frame Rate = 29.970 fps
})");
}

TEST(TrackBlock, CountsAHalfTurnAsRotated) {
  const std::string block = blockOf(videoTrack({.a = -1, .b = 0, .c = 0, .d = -1}));
  EXPECT_NE(block.find("\n  Dimensions         = 1920 x 1080\n  Dimensions Rotated = 1920 x 1080"
                       "\n  Rotation = 180.00°\n"),
            std::string::npos)
      << block;
}

TEST(TrackBlock, ShowsRotationsOfEveryQuarter) {
  struct Row {
    AffineTransform transform;
    const char* line;
  };
  const Row rows[] = {
      {{.a = 0, .b = -1, .c = 1, .d = 0}, "Rotation = -90.00°"},
      {{.a = -1, .b = -0.0, .c = 0, .d = -1}, "Rotation = -180.00°"},
      {{.a = 1, .b = 1, .c = -1, .d = 1}, "Rotation = 45.00°"},
      {{.a = 0, .b = 0, .c = 0, .d = 0}, "Rotation = 0.00°"},
      {{.a = notANumber, .b = 0, .c = 0, .d = 1}, "Rotation = nan°"},
  };
  for (const Row& row : rows) {
    const std::string block = blockOf(videoTrack(row.transform));
    EXPECT_NE(block.find(row.line), std::string::npos) << block;
  }
}

TEST(TrackBlock, TakesTheRotatedSizeFromTheNaturalSize) {
  Track track = videoTrack({.a = 0, .b = 1, .c = -1, .d = 0});
  track.naturalSize = {640.4, 360.6};
  const std::string block = blockOf(track);
  EXPECT_NE(block.find("= 1920 x 1080\n  Dimensions Rotated = 361 x 640\n"), std::string::npos)
      << block;
}

TEST(TrackBlock, DividesOneByTheShortestFrameWhateverItIs) {
  struct Row {
    std::optional<double> seconds;
    const char* rate;
  };
  const Row rows[] = {{1.0 / 240, "240.000"}, {0.0, "inf"},        {-0.0, "-inf"},
                      {std::nullopt, "nan"},  {notANumber, "nan"}, {infinity, "0.000"}};
  for (const Row& row : rows) {
    Track track = videoTrack({});
    track.minFrameDuration = row.seconds;
    const std::string block = blockOf(track);
    EXPECT_TRUE(block.ends_with(std::string("\n  Maximum Frame Rate = ") + row.rate + " fps\n}"))
        << block;
  }
}

TEST(TrackBlock, PrintsNumbersThatAreNone) {
  Track track = videoTrack({});
  track.duration = notANumber;
  track.estimatedDataRate = std::numeric_limits<float>::infinity();
  const std::string block = blockOf(track);
  EXPECT_NE(block.find("\n  Duration = nans\n"), std::string::npos) << block;
  EXPECT_NE(block.find("\n  Data Rate = inf Mbps\n"), std::string::npos) << block;
}

TEST(TrackBlock, ShowsSoundWithFlagsBeforeTheSampleRate) {
  EXPECT_EQ(blockOf(soundTrack()),
            "AVAssetTrack\n{\n  trackID = 2\n  MediaType = soun\n  Duration = 293.83s\n"
            "  Codec = aac \n  FormatFlags = 1\n  SampleRate = 44100\n  BytesPerPacket = 3\n"
            "  FramesPerPacket = 1024\n  BytesPerFrame = 4\n  ChannelsPerFrame = 2\n"
            "  BitsPerChannel = 16\n  Data Rate = 249.089 Kbps\n}");
}

TEST(TrackBlock, PrintsUnsignedFieldsAsSignedOnes) {
  Track track = soundTrack();
  track.formatDescriptions[0].audio->formatFlags = 0xFFFFFFFF;
  track.formatDescriptions[0].audio->bitsPerChannel = 0x80000000;
  const std::string block = blockOf(track);
  EXPECT_NE(block.find("\n  FormatFlags = -1\n"), std::string::npos) << block;
  EXPECT_NE(block.find("\n  BitsPerChannel = -2147483648\n"), std::string::npos) << block;
}

TEST(TrackBlock, LeavesSoundFactsOutWithoutAStreamDescription) {
  Track track = soundTrack();
  track.formatDescriptions[0].audio.reset();
  track.formatDescriptions[0].extensions = {{"a", 1}};
  EXPECT_EQ(blockOf(track), "AVAssetTrack\n{\n  trackID = 2\n  MediaType = soun\n  a = 1\n}");
}

TEST(TrackBlock, ShowsOnlyExtensionsOfOtherMediaTypes) {
  Track track;
  track.trackID = -3;
  track.mediaType = "meta";
  track.formatDescriptions = {{.mediaType = fourCharCode("meta"),
                               .mediaSubType = fourCharCode("mebx"),
                               .width = 0,
                               .height = 0,
                               .audio = {},
                               .extensions = {{"Keys", model::Array{1, 2}}}}};
  EXPECT_EQ(blockOf(track),
            "AVAssetTrack\n{\n  trackID = -3\n  MediaType = meta\n  Keys = [1,2]\n}");
}

TEST(TrackBlock, GoesByTheDescriptionNotByTheTrack) {
  Track track = soundTrack();
  track.mediaType = "vide";
  EXPECT_NE(blockOf(track).find("SampleRate"), std::string::npos);
}

TEST(TrackBlock, RepeatsTheFactsForEveryDescription) {
  Track track = videoTrack({});
  track.formatDescriptions.push_back(track.formatDescriptions[0]);
  track.formatDescriptions[0].extensions = {{"first", 1}};
  track.formatDescriptions[1].mediaSubType = fourCharCode("hvc1");
  const std::string block = blockOf(track);
  const std::size_t extension = block.find("\n  first = 1\n  Duration = 3.04s\n  Codec = hvc1\n");
  EXPECT_NE(extension, std::string::npos) << block;
  EXPECT_LT(block.find("Codec = avc1"), extension) << block;
}

TEST(TrackBlock, EndsWithTheMetadataThatHasKeyAndValue) {
  Track track;
  track.trackID = 1;
  track.mediaType = "text";
  track.commonMetadata = {{"title", "A"},
                          {std::nullopt, "no key"},
                          {"empty", std::nullopt},
                          {"null", model::Value()},
                          {"count", 2}};
  EXPECT_EQ(blockOf(track),
            "AVAssetTrack\n{\n  trackID = 1\n  MediaType = text\n  title = A\n  count = 2\n}");
}

}  // namespace
}  // namespace lumifact
