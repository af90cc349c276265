// SPDX-License-Identifier: MIT
//
// One track of a movie ("trak").
#pragma once

#include <optional>

#include "media/movie/boxes/movie_layout.h"
#include "media/movie/tracks/sample_table.h"
#include "model/media_asset.h"

namespace media::movie {

// What a track needs to know of its movie.
struct MovieFacts {
  FileFormat format = FileFormat::quickTime;
  std::uint32_t timeScale = 0;  // ticks a second
  bool isFragmented = false;
};

// A track with the totals of its samples in the movie header, before rates and missing durations
// are made from them.
struct TrackDraft {
  model::Track track;  // duration NaN where the headers do not state one
  SampleTotals totals;
  std::uint32_t mediaTimeScale = 0;
  std::uint64_t mediaDuration = 0;  // ticks of the media; 0 when not known
};

// None where the track has no header or no media of a known kind ("hdlr"). Damaged tables are left
// out.
std::optional<TrackDraft> readTrack(MovieWalk& walk, const io::IsoBox& box,
                                    const MovieFacts& movie);

// Sets the rates, the smallest frame duration and a missing duration from the totals, which may
// have grown by fragments. A fragmented track's stated durations count less than its samples.
model::Track finishTrack(TrackDraft draft, const MovieFacts& movie);

}  // namespace media::movie
