// SPDX-License-Identifier: MIT
//
// A decoded frame as a picture.
#pragma once

extern "C" {
#include <libavformat/avformat.h>
}

#include <optional>

#include "desktop/pictures/picture.h"

namespace desktop::pictures {

// Scaled, upright, with square pixels. None where the frame cannot be converted.
std::optional<Picture> pictureOf(const AVFrame& frame, const AVStream& stream,
                                 const Request& request);

}  // namespace desktop::pictures
