// SPDX-License-Identifier: MIT
//
// The tables of what the library holds.
#pragma once

#include <span>

#include "samples/library/item.h"

namespace samples {

std::span<const Photo> allPhotos();
std::span<const Movie> allMovies();

// Empty files that mark a folder, such as that of a shared album.
std::span<const char* const> allMarkers();

}  // namespace samples
