// SPDX-License-Identifier: MIT
//
// The "trak" box.
#pragma once

#include "samples/movies/sample_table.h"

namespace samples {

// How the file tells times and itself.
struct TrackContext {
  bool quickTime = true;
  std::uint32_t created = 0;           // seconds since 1904, UTC
  std::uint32_t movieTimeScale = 600;  // units a second
  std::size_t number = 1;              // the track's id
  std::size_t describedTrack = 0;      // id of the track that timed metadata belong to
};

// The track's length in the movie's time scale.
std::uint64_t trackDuration(const MovieTrack& track, std::uint32_t movieTimeScale);

void writeTrack(BoxWriter& out, const MovieTrack& track, const TrackContext& context,
                const std::vector<Chunk>& chunks, const std::vector<std::uint64_t>& offsets);

}  // namespace samples
