// SPDX-License-Identifier: MIT
//
// A stream of FFmpeg's as a track.
#pragma once

extern "C" {
#include <libavformat/avformat.h>
}

#include <optional>

#include "model/media_asset.h"

namespace media::movie {

// None for streams that are no track: attachments, cover pictures, unknown kinds.
std::optional<model::Track> trackOfStream(const AVFormatContext& context, const AVStream& stream);

}  // namespace media::movie
