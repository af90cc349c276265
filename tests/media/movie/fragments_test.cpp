// SPDX-License-Identifier: MIT
#include "media/movie/tracks/fragments.h"

#include <gtest/gtest.h>

#include "tests/media/movie/reading.h"

namespace media::movie {
namespace {

Bytes trackDefaults(std::uint32_t trackID, std::uint32_t duration, std::uint32_t size) {
  return fullBox("trex", 0, Writer().u32(trackID).u32(1).u32(duration).u32(size).u32(0));
}

Bytes streamHeader(std::uint32_t movieDuration, const Bytes& defaults) {
  const Bytes trak = track({.header = trackHeader(1, 0, {1, 0, 0, 1, 0, 0}, 0, 0),
                            .mediaHeader = mediaHeader(1000, 0),
                            .handlerType = "vide",
                            .descriptions = sampleDescriptions({videoEntry({})}),
                            .times = timeToSample({}),
                            .sizes = sampleSizes({})});
  const Bytes duration = fullBox("mehd", 0, Writer().u32(movieDuration));
  return joined({fileType("iso5"),
                 box("moov", {movieHeader(1000, 0), trak, box("mvex", {duration, defaults})})});
}

Bytes fragment(const Bytes& header, const Bytes& run) {
  return joined({box("moof", {fullBox("mfhd", 0, Writer().u32(1)), box("traf", {header, run})}),
                 codedSamples(50)});
}

Bytes fragmentHeader(std::uint32_t flags, const Bytes& fields) {
  return fullBox("tfhd", flags, joined({Writer().u32(1), fields}));
}

TEST(Fragments, AddUpRunsAndDefaults) {
  const Bytes movie = joined({
      streamHeader(5000, trackDefaults(1, 40, 700)),
      // Defaults of the track: 10 x 40 ticks, 10 x 700 bytes.
      fragment(fragmentHeader(0x020000, {}), fullBox("trun", 0x1, Writer().u32(10).u32(0))),
      // Defaults of the fragment: 5 x 30 ticks, 5 x 100 bytes.
      fragment(fragmentHeader(0x1B, Writer().u64(0).u32(1).u32(30).u32(100)),
               fullBox("trun", 0, Writer().u32(5))),
      // Stated by sample: 60 + 20 ticks, 1000 + 500 bytes.
      fragment(fragmentHeader(0, {}), fullBox("trun", 0xF05,
                                              Writer()
                                                  .u32(2)
                                                  .u32(0)
                                                  .u32(0)
                                                  .u32(60)
                                                  .u32(1000)
                                                  .u32(0)
                                                  .u32(0)
                                                  .u32(20)
                                                  .u32(500)
                                                  .u32(0)
                                                  .u32(0))),
  });
  const Reading reading = readBytes(movie);
  ASSERT_EQ(reading.asset.tracks.size(), 1U);
  const model::Track& track = reading.asset.tracks[0];
  EXPECT_DOUBLE_EQ(track.duration, 0.63);
  EXPECT_FLOAT_EQ(track.nominalFrameRate, 17 / 0.63F);
  EXPECT_FLOAT_EQ(track.estimatedDataRate, 8 * 9000 / 0.63F);
  EXPECT_EQ(track.minFrameDuration, 0.02);
  EXPECT_EQ(track.naturalSize, (model::Size{1920, 1080}));
  EXPECT_EQ(reading.asset.duration, 5);
}

TEST(Fragments, CountOnlyForAnnouncedTracks) {
  const Bytes movie =
      joined({streamHeader(0, trackDefaults(2, 40, 700)),
              fragment(fragmentHeader(0, {}), fullBox("trun", 0, Writer().u32(10)))});
  EXPECT_EQ(readBytes(movie).asset.tracks[0].nominalFrameRate, 0);
}

TEST(Fragments, SurviveNonsense) {
  const Bytes movie = joined({
      streamHeader(0xFFFFFFFF, trackDefaults(1, 0xFFFFFFFF, 0xFFFFFFFF)),
      fragment(fragmentHeader(0, {}), fullBox("trun", 0, Writer().u32(0xFFFFFFFF))),
      fragment(fragmentHeader(0, {}), fullBox("trun", 0xF00, Writer().u32(0xFFFFFFFF).u32(1))),
      fragment({}, fullBox("trun", 0, Writer().u32(5))),
      fragment(box("tfhd", Bytes()), fullBox("trun", 0, Bytes())),
      box("moof", Bytes(3, 0)),
  });
  const Reading reading = readBytes(movie);
  ASSERT_EQ(reading.asset.tracks.size(), 1U);
  EXPECT_GT(reading.asset.tracks[0].nominalFrameRate, 0);
}

}  // namespace
}  // namespace media::movie
