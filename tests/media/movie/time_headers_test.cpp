// SPDX-License-Identifier: MIT
#include "media/movie/boxes/time_headers.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/media/movie/reading.h"

namespace media::movie {
namespace {

io::ByteView payloadOf(const Bytes& box) {
  return io::ByteView(box).from(8);
}

TEST(TimeHeaders, ReadBothVersions) {
  const Bytes wide =
      fullBox("mvhd", 0x01000000,
              Writer().u64(3621153795).u64(0).u32(90000).u64(std::uint64_t{1} << 40).zeros(80));
  const auto header = parseTimeHeader(payloadOf(wide));
  ASSERT_TRUE(header);
  EXPECT_EQ(header->creationTime, 3621153795U);
  EXPECT_EQ(header->timeScale, 90000U);
  EXPECT_EQ(header->duration, std::uint64_t{1} << 40);

  const Bytes wideTrack = fullBox("tkhd", 0x01000007,
                                  Writer()
                                      .u64(0)
                                      .u64(0)
                                      .u32(7)
                                      .u32(0)
                                      .u64(1234)
                                      .zeros(16)
                                      .fixed(-1)
                                      .u32(0)
                                      .u32(0)
                                      .u32(0)
                                      .fixed(-1)
                                      .u32(0)
                                      .fixed(1920)
                                      .fixed(1080)
                                      .u32(0x40000000)
                                      .fixed(1920)
                                      .fixed(1080));
  const auto track = parseTrackHeader(payloadOf(wideTrack));
  ASSERT_TRUE(track);
  EXPECT_EQ(track->trackID, 7);
  EXPECT_EQ(track->duration, 1234U);
  EXPECT_EQ(track->transform, (model::AffineTransform{-1, 0, 0, -1, 1920, 1080}));
  EXPECT_EQ(track->size, (model::Size{1920, 1080}));
}

TEST(TimeHeaders, TakeAllOnesForNotKnown) {
  const Bytes header = mediaHeader(600, 0xFFFFFFFF);
  EXPECT_EQ(parseTimeHeader(payloadOf(header))->duration, 0U);
}

TEST(TimeHeaders, RefuseWhatIsTooShort) {
  const Bytes media = mediaHeader(600, 1);
  const Bytes whole = trackHeader(1, 1, {1, 0, 0, 1, 0, 0}, 1, 1);
  EXPECT_FALSE(parseTimeHeader(payloadOf(media).sub(0, 19).value()));
  EXPECT_FALSE(parseTrackHeader(payloadOf(whole).sub(0, 83).value()));
  EXPECT_FALSE(parseTimeHeader(io::ByteView()));
}

TEST(TimeHeaders, SumAnEditList) {
  const Bytes list = fullBox(
      "elst", 0,
      Writer().u32(3).u32(100).u32(0xFFFFFFFF).u32(0x10000).u32(250).u32(0).u32(0x10000).u32(7));
  EXPECT_EQ(editListDuration(payloadOf(list)), 350U) << "the third entry is cut off";
}

TEST(TimeHeaders, DivideByNothingOnly) {
  EXPECT_EQ(secondsOf(8814806, 30000), 8814806 / 30000.0);
  EXPECT_EQ(secondsOf(5, 0), std::nullopt);
  EXPECT_EQ(secondsOf(0, 5), std::nullopt);
}

// The times and rates of one track.
TEST(TrackTimes, AreStatedByHeadersInTurn) {
  const Bytes none = trackHeader(1, 0, {1, 0, 0, 1, 0, 0}, 1, 1);
  const Bytes entry = videoEntry({});
  EXPECT_EQ(readTrackOf({.entry = entry}).duration, 1);
  EXPECT_EQ(readTrackOf({.entry = entry, .header = none, .edits = editList(700)}).duration, 0.7);
  EXPECT_EQ(
      readTrackOf({.entry = entry, .header = none, .mediaTimes = mediaHeader(1000, 800)}).duration,
      0.8);
  EXPECT_EQ(readTrackOf({.entry = entry,
                         .header = none,
                         .mediaTimes = mediaHeader(1000, 0),
                         .times = timeToSample({{9, 100}})})
                .duration,
            0.9);
}

TEST(TrackTimes, AreUnknownWithoutATimeScale) {
  const model::Track track = readTrackOf({.entry = videoEntry({}),
                                          .header = trackHeader(1, 0, {1, 0, 0, 1, 0, 0}, 1, 1),
                                          .mediaTimes = mediaHeader(0, 800)});
  EXPECT_EQ(track.trackID, 1);
  EXPECT_TRUE(std::isnan(track.duration));
  EXPECT_EQ(track.estimatedDataRate, 0);
  EXPECT_EQ(track.nominalFrameRate, 0);
  EXPECT_EQ(track.minFrameDuration, std::nullopt);
}

}  // namespace
}  // namespace media::movie
