// SPDX-License-Identifier: MIT
//
// The door to FFmpeg for frames: a module of our own that is mapped, with FFmpeg behind it, when
// the first video is met.
#pragma once

#include "desktop/pictures/pixels/picture.h"
#include "io/byte_source.h"
#include "model/result.h"

namespace desktop::pictures {

// The first frame of a video that can be decoded, turned as its track says and with square pixels.
// Fails where FFmpeg knows nothing of the file, or, like the module, is not installed. REQUIRES:
// the request is not empty.
model::Result<Picture> decodeVideoFrame(io::ByteSource& source, const Request& request);

// Loads the module, where it is installed.
void loadVideoDecoders();

// The module's function, under its C name. Fills the picture and returns 0, or returns another
// number and leaves it as it is.
extern "C" {
using DecodeFrameWithFfmpeg = int (*)(io::ByteSource* source, const Request* request,
                                      Picture* picture);
}
inline constexpr char ffmpegFramesModule[] = "desktop_ffmpeg_frames.so";
inline constexpr char ffmpegFramesFunction[] = "desktopDecodeFrameWithFfmpeg";

}  // namespace desktop::pictures
