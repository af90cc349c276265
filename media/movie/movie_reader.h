// SPDX-License-Identifier: MIT
//
// The header of a movie ("moov") as a media asset.
#pragma once

#include "media/movie/boxes/movie_layout.h"
#include "media/movie/other/movie_file.h"
#include "model/result.h"

namespace media::movie {

// The movie whose outermost boxes are known. Tracks are in the order of the file; what is damaged
// is left out. Errors: a read that fails; a compressed header that cannot be inflated; a header
// that is cut off before it says anything ("truncated movie").
model::Result<MovieFile> readMovie(io::ByteSource& source, const MovieLayout& layout);

}  // namespace media::movie
