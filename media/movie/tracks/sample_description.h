// SPDX-License-Identifier: MIT
//
// A sample description table ("stsd") as format descriptions. ISO/IEC 14496-12, 8.5.2; QuickTime
// File Format, "Sample Description Atoms".
#pragma once

#include <vector>

#include "media/movie/tracks/sample_entry.h"

namespace media::movie {

// The format descriptions of a "stsd" payload, in its order; entries that are cut off are left
// out. `track` tells what the entries have in common; its box is not read.
std::vector<model::FormatDescription> parseSampleDescriptions(io::ByteView table,
                                                              SampleEntry track);

}  // namespace media::movie
