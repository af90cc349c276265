// SPDX-License-Identifier: MIT
#include "desktop/pictures/ffmpeg/hevc_tiles.h"

extern "C" {
#include <libavutil/log.h>
}

#include <algorithm>
#include <utility>

#include "desktop/pictures/ffmpeg/frame_decoder.h"
#include "desktop/pictures/ffmpeg/frame_picture.h"

namespace desktop::pictures {

namespace {

Codec openHevc(const TileFormat& format) {
  const AVCodec* decoder = avcodec_find_decoder(AV_CODEC_ID_HEVC);
  Codec codec(decoder == nullptr ? nullptr : avcodec_alloc_context3(decoder));
  if (!codec) return nullptr;
  const std::size_t size = format.configuration.size();
  codec->extradata = static_cast<std::uint8_t*>(av_mallocz(size + AV_INPUT_BUFFER_PADDING_SIZE));
  if (codec->extradata == nullptr) return nullptr;
  std::ranges::copy(format.configuration, codec->extradata);
  codec->extradata_size = static_cast<int>(size);
  codec->thread_count = 1;
  codec->max_pixels = std::int64_t{2} * format.size.width * format.size.height;
  codec->flags |= AV_CODEC_FLAG_LOW_DELAY;
  if (avcodec_open2(codec.get(), decoder, nullptr) < 0) return nullptr;
  return codec;
}

class HevcTileDecoder : public TileDecoder {
 public:
  HevcTileDecoder(const TileFormat& format, Codec codec)
      : _size(format.size),
        _codec(std::move(codec)),
        _packet(av_packet_alloc()),
        _frame(av_frame_alloc()) {}

  bool decode(std::span<const std::uint8_t> coded, std::uint32_t* pixels,
              std::ptrdiff_t stride) override {
    if (!_packet || !_frame || !decodeFrame(coded)) return false;
    if (_frame->width != _size.width || _frame->height != _size.height) return false;
    if (std::exchange(_format, _frame->format) != _frame->format) _scaler.reset();
    return convertTile(*_frame, pixels, stride, _scaler);
  }

 private:
  bool decodeFrame(std::span<const std::uint8_t> coded) {
    if (av_new_packet(_packet.get(), static_cast<int>(coded.size())) < 0) return false;
    std::ranges::copy(coded, _packet->data);
    const int sent = avcodec_send_packet(_codec.get(), _packet.get());
    av_packet_unref(_packet.get());
    if (sent < 0) return false;
    int received = avcodec_receive_frame(_codec.get(), _frame.get());
    if (received == AVERROR(EAGAIN)) {
      // The stream says that frames come late: the end brings this one out.
      avcodec_send_packet(_codec.get(), nullptr);
      received = avcodec_receive_frame(_codec.get(), _frame.get());
      avcodec_flush_buffers(_codec.get());
    }
    return received == 0;
  }

  PixelSize _size;
  Codec _codec;
  Packet _packet;
  Frame _frame;
  Scaler _scaler;
  int _format = AV_PIX_FMT_NONE;  // that the scaler is for
};

}  // namespace

std::unique_ptr<TileDecoder> makeHevcTileDecoder(const TileFormat& format) {
  av_log_set_level(AV_LOG_QUIET);
  auto codec = openHevc(format);
  if (!codec) return nullptr;
  return std::make_unique<HevcTileDecoder>(format, std::move(codec));
}

}  // namespace desktop::pictures
