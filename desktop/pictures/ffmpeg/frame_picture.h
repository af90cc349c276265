// SPDX-License-Identifier: MIT
//
// A decoded frame as a picture.
#pragma once

extern "C" {
#include <libavformat/avformat.h>
#include <libswscale/swscale.h>
}

#include <memory>
#include <optional>

#include "desktop/pictures/pixels/picture.h"

namespace desktop::pictures {

struct FreeScaler {
  void operator()(SwsContext* context) const { sws_freeContext(context); }
};
using Scaler = std::unique_ptr<SwsContext, FreeScaler>;

// Scaled, upright, with square pixels. None where the frame cannot be converted.
std::optional<Picture> pictureOf(const AVFrame& frame, const AVStream& stream,
                                 const Request& request);

// Converts a tile of a still picture at its own size; rows lie `stride` pixels apart. Without a
// statement of its own it has all values (full range) and the matrix of BT.601, as HEIF has it. The
// scaler is kept from tile to tile. False where the tile cannot be converted.
bool convertTile(const AVFrame& frame, std::uint32_t* pixels, std::ptrdiff_t stride,
                 Scaler& scaler);

}  // namespace desktop::pictures
