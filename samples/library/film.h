// SPDX-License-Identifier: MIT
//
// A movie of the library as a file's content.
#pragma once

#include "model/result.h"
#include "samples/movies/movie_file.h"

namespace samples {

// Errors: an encoder that is missing or fails.
model::Result<FileContent> makeMovie(const Movie& movie);

}  // namespace samples
