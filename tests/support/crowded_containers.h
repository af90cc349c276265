// SPDX-License-Identifier: MIT
//
// Containers of others that are made to cost much: as many streams as one likes, with pictures and
// tables as large as their fields can say.
#pragma once

#include "tests/support/movie_builder.h"

namespace media::movie {

// A transport stream of H.264 streams and as many of sound, in programs of a hundred, with a packet
// each.
Bytes crowdedTransportStream(int streams);

// Matroska, with tracks of H.264 of the largest size that its fields can say, and a place.
Bytes crowdedMatroska(int tracks);

// AVI, with streams whose coder's configuration claims a gigabyte.
Bytes crowdedAvi(int streams);

}  // namespace media::movie
