// SPDX-License-Identifier: MIT
//
// The first frame of a video stream that FFmpeg can decode.
#pragma once

extern "C" {
#include <libavcodec/avcodec.h>
}

#include <memory>

#include "media/movie/ffmpeg/demuxer.h"

namespace desktop::pictures {

struct FreeCodec {
  void operator()(AVCodecContext* codec) const { avcodec_free_context(&codec); }
  void operator()(AVPacket* packet) const { av_packet_free(&packet); }
  void operator()(AVFrame* frame) const { av_frame_free(&frame); }
};
using Codec = std::unique_ptr<AVCodecContext, FreeCodec>;
using Packet = std::unique_ptr<AVPacket, FreeCodec>;
using Frame = std::unique_ptr<AVFrame, FreeCodec>;

// Null where there is none within the limits.
Frame firstFrame(media::movie::Demuxer& demuxer, const AVStream& stream);

}  // namespace desktop::pictures
