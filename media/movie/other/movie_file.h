// SPDX-License-Identifier: MIT
//
// What was read of a video file.
#pragma once

#include <string>

#include "model/media_asset.h"

namespace media::movie {

struct MovieFile {
  model::MediaAsset asset;
  // What a limit or the end of the file cut of it, as a text that can stand behind "FILE: "; empty
  // where it is whole.
  std::string shortfall = {};
};

}  // namespace media::movie
