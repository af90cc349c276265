// SPDX-License-Identifier: MIT
//
// The first frame of a video stream that FFmpeg can decode.
#pragma once

extern "C" {
#include <libavcodec/avcodec.h>
}

#include <memory>

#include "desktop/avfoundation/ffmpeg/demuxer.h"

namespace desktop::pictures {

struct FreeFrame {
  void operator()(AVFrame* frame) const { av_frame_free(&frame); }
};
using Frame = std::unique_ptr<AVFrame, FreeFrame>;

// Null where there is none within the limits.
Frame firstFrame(avfoundation::Demuxer& demuxer, const AVStream& stream);

}  // namespace desktop::pictures
