// SPDX-License-Identifier: MIT
#include "samples/movies/sample_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>

namespace samples {
namespace {

MovieTrack trackOf(std::uint32_t timeScale, std::size_t count, std::uint32_t duration) {
  MovieTrack track{.timeScale = timeScale, .samples = {}, .description = {}};
  for (std::size_t index = 0; index < count; ++index)
    track.samples.push_back({.data = Bytes(index + 1), .duration = duration});
  return track;
}

// The content of a box of the table, after version and flags.
Bytes boxOf(const MovieTrack& track, const std::vector<Chunk>& chunks, std::string_view type) {
  BoxWriter out;
  writeSampleTable(out, track, chunks, {});
  const Bytes& table = out.bytes();
  const auto at = std::search(table.begin(), table.end(), type.begin(), type.end());
  if (at == table.end()) return {};
  const std::ptrdiff_t size = at[-2] * 256 + at[-1];
  return {at + 8, at - 4 + size};
}

TEST(SampleTable, InterleavesTracksByHalfSeconds) {
  const std::vector<Chunk> chunks = interleavedChunks({trackOf(10, 10, 1), trackOf(100, 2, 50)});
  std::vector<std::size_t> order;
  order.reserve(chunks.size());
  for (const Chunk& chunk : chunks) order.push_back(chunk.track);
  EXPECT_EQ(order, (std::vector<std::size_t>{0, 1, 0, 1}));
  EXPECT_EQ(chunks[2].firstSample, 5u);
  EXPECT_EQ(chunks[2].size, 6u + 7 + 8 + 9 + 10);
}

TEST(SampleTable, CountsEqualNeighboursTogether) {
  MovieTrack track = trackOf(600, 4, 20);
  track.samples[3].duration = 21;
  EXPECT_EQ(boxOf(track, interleavedChunks({track}), "stts"),
            (Bytes{0, 0, 0, 2, 0, 0, 0, 3, 0, 0, 0, 20, 0, 0, 0, 1, 0, 0, 0, 21}));
  EXPECT_TRUE(boxOf(track, interleavedChunks({track}), "ctts").empty());
}

TEST(SampleTable, KeepsOneSizeForLinearSound) {
  MovieTrack track{.kind = TrackKind::sound,
                   .timeScale = 44100,
                   .samples = {{.data = Bytes(200), .duration = 1, .units = 100}},
                   .description = {}};
  const std::vector<Chunk> chunks = interleavedChunks({track});
  EXPECT_EQ(boxOf(track, chunks, "stsz"), (Bytes{0, 0, 0, 2, 0, 0, 0, 100}));
  EXPECT_EQ(boxOf(track, chunks, "stsc"),
            (Bytes{0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 100, 0, 0, 0, 1}));
  EXPECT_EQ(mediaDuration(track), 100u);
}

}  // namespace
}  // namespace samples
