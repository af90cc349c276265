// SPDX-License-Identifier: MIT
//
// The door to FFmpeg: containers that are not our own are read by worker processes, so that neither
// what a file does to FFmpeg, nor what FFmpeg takes, is this process's.
#pragma once

#include <optional>
#include <string>

#include "io/byte_source.h"
#include "model/media_asset.h"
#include "model/result.h"

namespace media::movie {

// What was read of a video file.
struct MovieFile {
  model::MediaAsset asset;
  // What a limit cut of it, as a text that can stand behind "FILE: "; empty where it is whole.
  std::string shortfall = {};
};

// What FFmpeg makes of a file. None where it knows nothing of it, or where the reader is not
// installed. Waits for the worker; from any thread.
//
// Errors: "too much for a reader", where there are too many streams or they take too much memory;
// that its reader crashed, took too long or does not start.
model::Result<std::optional<MovieFile>> readOtherContainer(const io::FileSource& file);

}  // namespace media::movie
