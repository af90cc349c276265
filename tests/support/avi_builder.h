// SPDX-License-Identifier: MIT
//
// A small AVI file for tests: a container that is not our own.
#pragma once

#include "tests/support/movie_builder.h"

namespace media::movie {

// Ten uncompressed pictures of 16 x 8 pixels at 25 a second, linear sound in stereo at 8000 Hz, and
// a title.
Bytes smallAvi();

}  // namespace media::movie
