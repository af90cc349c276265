// SPDX-License-Identifier: MIT
//
// A sound sample entry as a format description with its stream description.
#pragma once

#include "media/movie/tracks/sample_entry.h"

namespace media::movie {

// REQUIRES: the entry is that of a sound track. Fields that are missing from a short entry are 0.
model::FormatDescription audioDescription(const SampleEntry& entry);

}  // namespace media::movie
