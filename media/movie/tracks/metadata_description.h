// SPDX-License-Identifier: MIT
//
// A timed metadata sample entry as a format description.
#pragma once

#include "media/movie/tracks/sample_entry.h"

namespace media::movie {

// 'mebx' (boxed metadata) has one extension, "MetadataKeyTable": a dictionary by the local
// identifiers of the keys, each with its name, type and set-up data. Other kinds keep their bytes.
// REQUIRES: the entry is that of a metadata track.
model::FormatDescription metadataDescription(const SampleEntry& entry);

}  // namespace media::movie
