// SPDX-License-Identifier: MIT
//
// The metadata boxes of a movie or a track as items by common key.
#pragma once

#include <optional>
#include <vector>

#include "media/movie/boxes/movie_walk.h"
#include "model/media_asset.h"

namespace media::movie {

// One item a common key, sorted by common key. QuickTime metadata ("meta") wins over iTunes
// metadata, that over user data ("udta"), that over 3GPP's boxes in it. Damaged and too large
// values are left out.
std::vector<model::MetadataItem> readCommonMetadata(MovieWalk& walk,
                                                    const std::optional<io::IsoBox>& metadata,
                                                    const std::optional<io::IsoBox>& userData);

}  // namespace media::movie
