// SPDX-License-Identifier: MIT
//
// The sample table ("stbl") of a track, and how the samples of several tracks share "mdat".
#pragma once

#include <vector>

#include "samples/formats/box_writer.h"
#include "samples/movies/movie_track.h"

namespace samples {

// Samples of one track that lie side by side.
struct Chunk {
  std::size_t track = 0;
  std::size_t firstSample = 0;
  std::size_t sampleCount = 0;
  double start = 0;  // seconds into the movie
  std::size_t size = 0;
};

// The chunks of all tracks in the order in which they lie in the file: about half a second each,
// by their time.
std::vector<Chunk> interleavedChunks(const std::vector<MovieTrack>& tracks);

// `offsets` are those of the track's own chunks, in order.
void writeSampleTable(BoxWriter& out, const MovieTrack& track, const std::vector<Chunk>& chunks,
                      const std::vector<std::uint64_t>& offsets);

}  // namespace samples
