// SPDX-License-Identifier: MIT
//
// libavcodec's objects, freed when they go.
#pragma once

extern "C" {
#include <libavcodec/avcodec.h>
}

#include <memory>

namespace samples {

struct AvDeleter {
  void operator()(AVCodecContext* context) const { avcodec_free_context(&context); }
  void operator()(AVFrame* frame) const { av_frame_free(&frame); }
  void operator()(AVPacket* packet) const { av_packet_free(&packet); }
};

using AvContext = std::unique_ptr<AVCodecContext, AvDeleter>;
using AvFrame = std::unique_ptr<AVFrame, AvDeleter>;
using AvPacket = std::unique_ptr<AVPacket, AvDeleter>;

// Sends a frame (null: the end) and hands every packet that is ready to take(packet). False where
// the encoder fails.
template <typename Take>
bool encodeFrame(AVCodecContext& context, const AVFrame* frame, Take take) {
  if (avcodec_send_frame(&context, frame) < 0) return false;
  const AvPacket packet(av_packet_alloc());
  int received = 0;
  while ((received = avcodec_receive_packet(&context, packet.get())) >= 0) {
    take(*packet);
    av_packet_unref(packet.get());
  }
  return received == AVERROR(EAGAIN) || received == AVERROR_EOF;
}

}  // namespace samples
