// SPDX-License-Identifier: MIT
//
// The door to FFmpeg: containers that are not our own are read by worker processes, so that neither
// what a file does to FFmpeg, nor what FFmpeg takes, is this process's.
#pragma once

#include <optional>
#include <string>

#include "io/byte_source.h"
#include "media/movie/other/movie_file.h"
#include "model/result.h"

namespace media::movie {

// What FFmpeg makes of a file. None where it knows nothing of it, or where the reader is not
// installed. Waits for the worker; from any thread.
//
// Errors: "too much for a reader", where there are too many streams or they take too much memory;
// that its reader crashed, took too long or does not start.
model::Result<std::optional<MovieFile>> readOtherContainer(const io::FileSource& file);

}  // namespace media::movie
