// SPDX-License-Identifier: MIT
//
// Movie headers that QuickTime compressed ("cmov"). QuickTime File Format, "Compressed Movie
// Resources".
#pragma once

#include <cstdint>
#include <vector>

#include "media/movie/boxes/movie_walk.h"
#include "model/result.h"

namespace media::movie {

// The "moov" box inside a "cmov" box, with its header. Errors: packed otherwise than with zlib;
// damaged; larger than the limit.
model::Result<std::vector<std::uint8_t>> inflateMovie(MovieWalk& walk, const io::IsoBox& box);

}  // namespace media::movie
