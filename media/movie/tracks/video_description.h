// SPDX-License-Identifier: MIT
//
// A video sample entry as a format description with all its extensions.
#pragma once

#include <optional>

#include "media/movie/tracks/sample_entry.h"
#include "model/geometry.h"

namespace media::movie {

// REQUIRES: the entry is that of a video track. Fields that are missing from a short entry are 0.
model::FormatDescription videoDescription(const SampleEntry& entry);

// The size a video is shown in, before the track's transform: its clean aperture, or else its
// encoded size, with the pixels made square.
model::Size presentationSize(const model::FormatDescription& description);

}  // namespace media::movie
