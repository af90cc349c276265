// SPDX-License-Identifier: MIT
//
// A tile decoder that is FFmpeg's.
#pragma once

#include <memory>

#include "desktop/pictures/decoders/tile_decoder.h"

namespace desktop::pictures {

// Null where FFmpeg has no decoder or refuses the configuration.
std::unique_ptr<TileDecoder> makeHevcTileDecoder(const TileFormat& format);

}  // namespace desktop::pictures
