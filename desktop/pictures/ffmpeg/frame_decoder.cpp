// SPDX-License-Identifier: MIT
#include "desktop/pictures/ffmpeg/frame_decoder.h"

#include "desktop/pictures/pixels/limits.h"

namespace desktop::pictures {

namespace {

Codec openCodec(const AVStream& stream) {
  const AVCodec* decoder = avcodec_find_decoder(stream.codecpar->codec_id);
  if (decoder == nullptr) return nullptr;
  Codec codec(avcodec_alloc_context3(decoder));
  if (!codec || avcodec_parameters_to_context(codec.get(), stream.codecpar) < 0) return nullptr;
  codec->pkt_timebase = stream.time_base;
  // Threads that take a frame each only delay the first one.
  codec->thread_count = limits.decoderThreads;
  codec->thread_type = FF_THREAD_SLICE;
  codec->max_pixels = static_cast<std::int64_t>(limits.decodedMegabytes) * (1 << 20) / 4;
  if (avcodec_open2(codec.get(), decoder, nullptr) < 0) return nullptr;
  return codec;
}

}  // namespace

Frame firstFrame(media::movie::Demuxer& demuxer, const AVStream& stream) {
  const Codec codec = openCodec(stream);
  const Packet packet(av_packet_alloc());
  Frame frame(av_frame_alloc());
  if (!codec || !packet || !frame) return nullptr;
  for (int count = 0; count < limits.framesUntilPicture; ++count) {
    const bool isAtEnd = av_read_frame(&demuxer.context(), packet.get()) < 0;
    // A packet that cannot be decoded is passed over. None at all asks for what is held back.
    if (isAtEnd || packet->stream_index == stream.index)
      avcodec_send_packet(codec.get(), isAtEnd ? nullptr : packet.get());
    av_packet_unref(packet.get());
    if (avcodec_receive_frame(codec.get(), frame.get()) == 0) return frame;
    if (isAtEnd) return nullptr;
  }
  return nullptr;
}

}  // namespace desktop::pictures
