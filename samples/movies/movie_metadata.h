// SPDX-License-Identifier: MIT
//
// What a movie tells about itself: where, when and with what it was made.
#pragma once

#include <string>

#include "samples/library/item.h"

namespace samples {

// "+48.8577+002.2950+035.000/" (ISO 6709), or without altitude.
std::string locationText(const Place& place, bool withAltitude);

// The boxes at the end of "moov" in the manner of the movie's brand.
Bytes movieMetadata(const Movie& movie);

}  // namespace samples
