// SPDX-License-Identifier: MIT
//
// Small movies of rarer kinds: tables with samples that show and play nothing.
#pragma once

#include <string>
#include <vector>

#include "samples/formats/byte_writer.h"

namespace samples {

struct SmallMovie {
  std::string name;  // "sound.3gp"
  Bytes bytes;
};

// A sequence of images without a still, sound of phone calls, and a video that ends in the middle
// of its movie box.
std::vector<SmallMovie> smallMovies();

}  // namespace samples
