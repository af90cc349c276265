// SPDX-License-Identifier: MIT
//
// A video file as a media asset: tracks, format descriptions and metadata, as the phone's media
// framework gives them.
#pragma once

#include <optional>
#include <string>

#include "io/byte_source.h"
#include "model/media_asset.h"
#include "model/result.h"

namespace media::movie {

// The asset of an ISO base media or QuickTime file (MOV, MP4, M4V, 3GP); none where the bytes are
// of another kind. Never reads coded samples ("mdat").
//
// Errors: a read that fails; an empty source ("empty file"); a movie that is cut off before the end
// of its "moov" box ("truncated movie") or has none; a compressed "moov" that cannot be inflated.
// Damaged tracks and metadata are left out; a movie that is only cut off in its samples is whole.
model::Result<std::optional<model::MediaAsset>> copyAsset(io::ByteSource& source);

// As copyAsset, for the file at a path, and for the other containers (MKV, AVI, ...) too, for
// which FFmpeg is mapped when one is met. None where it is no video FFmpeg knows, or FFmpeg is
// not installed.
model::Result<std::optional<model::MediaAsset>> copyAssetOfFile(const std::string& path,
                                                                io::ByteSource& source);

}  // namespace media::movie
