// SPDX-License-Identifier: MIT
//
// QuickTime and MP4 files: the boxes around tracks, laid out as phones and programs do it.
#pragma once

#include <vector>

#include "samples/movies/movie_track.h"

namespace samples {

// A file that may have a hole: `head`, then nothing up to `tailOffset`, then `tail`.
struct FileContent {
  Bytes head;
  std::uint64_t tailOffset = 0;
  Bytes tail = {};
};

// The movie's file. REQUIRES: at least one track, each with samples; a file size, if one is
// asked for, is larger than what has to be in the file.
FileContent movieFile(const Movie& movie, const std::vector<MovieTrack>& tracks);

}  // namespace samples
