// SPDX-License-Identifier: MIT
//
// The video containers that are left to FFmpeg, told by their first bytes.
#pragma once

#include "io/byte_source.h"
#include "model/result.h"

namespace media::movie {

// Whether the source begins as Matroska or WebM, AVI, MPEG program, transport or video stream,
// Flash video, ASF, Ogg, RealMedia, MXF or NUT does. Reads at most 1 KiB. Errors: a failed read.
model::Result<bool> isOtherContainer(io::ByteSource& source);

}  // namespace media::movie
