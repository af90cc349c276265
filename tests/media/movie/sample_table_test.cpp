// SPDX-License-Identifier: MIT
#include "media/movie/tracks/sample_table.h"

#include <gtest/gtest.h>

#include "tests/media/movie/reading.h"

namespace media::movie {
namespace {

model::Track trackWith(const Bytes& times, const Bytes& sizes,
                       const Bytes& mediaTimes = mediaHeader(600, 600)) {
  return readTrackOf(
      {.entry = videoEntry({}), .mediaTimes = mediaTimes, .times = times, .sizes = sizes});
}

TEST(SampleTable, TakesTheSmallestDeltaForTheShortestFrame) {
  const struct {
    std::vector<std::pair<std::uint32_t, std::uint32_t>> runs;
    std::optional<double> expected;
  } cases[] = {
      {{{30, 20}}, 20 / 600.0},
      {{{44, 20}, {1, 21}, {75, 19}}, 19 / 600.0},
      {{{30, 20}, {1, 0}}, 20 / 600.0},           // the last sample lasts nothing
      {{{30, 20}, {0, 5}}, 20 / 600.0},           // no sample has that delta
      {{{30, 20}, {1, 0xFFFFFFF0}}, 20 / 600.0},  // a negative delta
      {{}, std::nullopt},
  };
  for (const auto& row : cases)
    EXPECT_EQ(trackWith(timeToSample(row.runs), constantSampleSize(1, 1)).minFrameDuration,
              row.expected);
}

TEST(SampleTable, KnowsNoShortestFrameOfSound) {
  const model::Track track =
      readTrackOf({.handlerType = "soun", .entry = soundEntry("twos", 1, 16, 8000)});
  EXPECT_EQ(track.minFrameDuration, std::nullopt);
}

TEST(SampleTable, AddsUpSizesOfEveryWidth) {
  const auto compact = [](std::uint32_t bits, std::uint32_t count, const Bytes& fields) {
    return fullBox("stz2", 0, Writer().u32(bits).u32(count).bytes(fields));
  };
  const struct {
    Bytes sizes;
    float bytes;
    float samples;
  } cases[] = {
      {sampleSizes({100, 200, 300}), 600, 3},
      {constantSampleSize(50, 4), 200, 4},
      {compact(16, 2, {1, 0, 0, 5}), 261, 2},
      {compact(8, 3, {7, 8, 9}), 24, 3},
      {compact(4, 3, {0x12, 0x30}), 6, 3},
      {compact(5, 3, {1, 2, 3}), 0, 10},  // no such width: the samples are those of "stts"
  };
  for (const auto& row : cases) {
    const model::Track track = trackWith(timeToSample({{10, 60}}), row.sizes);
    EXPECT_EQ(track.estimatedDataRate, 8 * row.bytes);
    EXPECT_EQ(track.nominalFrameRate, row.samples);
  }
}

TEST(SampleTable, CountsByTheTimesWhereSizesAreMissing) {
  EXPECT_EQ(trackWith(timeToSample({{10, 60}}), {}).nominalFrameRate, 10);
}

TEST(SampleTable, AddsUpATableOfManyWindows) {
  const std::vector<std::uint32_t> sizes(100000, 3);
  const model::Track track = trackWith(timeToSample({{100000, 1}}), sampleSizes(sizes));
  EXPECT_EQ(track.estimatedDataRate, 8.0F * 300000);
  EXPECT_EQ(track.nominalFrameRate, 100000);
}

TEST(SampleTable, TakesNoMoreSamplesThanThereAre) {
  const Bytes claim = fullBox("stsz", 0, Writer().u32(0).u32(4000000000).u32(10).u32(20));
  const Bytes times = fullBox("stts", 0, Writer().u32(4000000000).u32(2).u32(300));
  const model::Track track = trackWith(times, claim);
  EXPECT_EQ(track.nominalFrameRate, 2);
  EXPECT_EQ(track.estimatedDataRate, 0) << "the sizes are not known";
  EXPECT_EQ(track.minFrameDuration, 0.5);
}

TEST(SampleTable, SurvivesBillionsOfSamples) {
  const model::Track track = trackWith(
      timeToSample({{0xFFFFFFFF, 0x7FFFFFFF}, {0xFFFFFFFF, 0x7FFFFFFF}, {0xFFFFFFFF, 0xFFFFFFFF}}),
      constantSampleSize(0xFFFFFFFF, 0xFFFFFFFF), mediaHeader(600, 0));
  EXPECT_GT(track.estimatedDataRate, 0);
  EXPECT_GT(track.nominalFrameRate, 0);
}

TEST(SampleTable, KnowsHowLargeThePacketsOfOldSoundFilesAre) {
  // Linear samples that are said to be a byte each, as old writers do.
  const model::Track linear = readTrackOf({.brand = "qt  ",
                                           .handlerType = "soun",
                                           .entry = soundEntry("twos", 2, 16, 8000),
                                           .sizes = constantSampleSize(1, 8000)});
  EXPECT_EQ(linear.estimatedDataRate, 8.0F * 8000 * 4);
  // Packets of 64 frames in 34 bytes a channel, counted by the frame.
  const model::Track packed = readTrackOf(
      {.brand = "qt  ",
       .handlerType = "soun",
       .entry = soundEntry("ima4", 2, 16, 8000, Writer().u32(64).u32(34).u32(68).u32(2), 1),
       .sizes = constantSampleSize(1, 6400)});
  EXPECT_EQ(packed.estimatedDataRate, 8.0F * 100 * 68);
}

}  // namespace
}  // namespace media::movie
