// SPDX-License-Identifier: MIT
//
// FFmpeg's metadata tags as items by common key.
#pragma once

extern "C" {
#include <libavutil/dict.h>
}

#include <vector>

#include "model/media_asset.h"

namespace media::movie {

// One item a common key, sorted by common key; tags without one are left out. `tags` may be null.
std::vector<model::MetadataItem> commonMetadataOf(const AVDictionary* tags);

}  // namespace media::movie
