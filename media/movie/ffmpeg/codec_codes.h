// SPDX-License-Identifier: MIT
//
// FFmpeg's codecs under the platform's four-character codes.
#pragma once

extern "C" {
#include <libavcodec/codec_id.h>
}

#include "model/media_asset.h"

namespace media::movie {

// The platform's code where it has one, else the container's own tag, else the start of FFmpeg's
// name of the codec. Linear sound of every kind is 'lpcm'.
model::FourCharCode codeOfCodec(AVCodecID codec, std::uint32_t tag);

// Whether the codec is linear samples.
bool isLinearSound(AVCodecID codec);

}  // namespace media::movie
