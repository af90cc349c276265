// SPDX-License-Identifier: MIT
//
// A video file as a media asset: tracks, format descriptions and metadata, as the phone's media
// framework gives them.
#pragma once

#include <optional>
#include <string>

#include "io/byte_source.h"
#include "media/movie/other/movie_file.h"
#include "model/result.h"

namespace media::movie {

// An ISO base media or QuickTime file (MOV, MP4, M4V, 3GP), or a sequence of HEIF images without a
// still; none where the bytes are of another kind. Never reads coded samples ("mdat").
//
// Errors: a read that fails; an empty source ("empty file"); a movie that is cut off before its
// "moov" box says anything ("truncated movie") or has none; a compressed "moov" that cannot be
// inflated. Damaged tracks and metadata are left out. A "moov" that is cut off says what it says up
// to there, and so that it is cut; a movie that is only cut off in its samples is whole.
model::Result<std::optional<MovieFile>> copyAsset(io::ByteSource& source);

// Whether a thread may wait for a worker process to read a file. One that may not has the file read
// in the background (see ContainerShelf), is told so by an error, and asks again after the news.
enum class Waiting { allowed, refused };
bool isBeingRead(const model::Error& error);

// As copyAsset, for a file, and for the other containers (MKV, AVI, ...) too, which a worker
// process reads by FFmpeg. `path` tells the kind where the bytes do not; it is not opened. None
// where it is no video that FFmpeg knows, or the reader is not installed. Errors: those of
// readOtherContainer too.
model::Result<std::optional<MovieFile>> copyAssetOfFile(const std::string& path,
                                                        io::FileSource& file,
                                                        Waiting waiting = Waiting::allowed);

}  // namespace media::movie
