// SPDX-License-Identifier: MIT
//
// The module's two functions.
#include <exception>

#include "desktop/pictures/ffmpeg/frame_decoder.h"
#include "desktop/pictures/ffmpeg/frame_picture.h"
#include "desktop/pictures/ffmpeg/hevc_tiles.h"
#include "desktop/pictures/pixels/limits.h"

namespace desktop::pictures {

namespace {

bool decode(io::ByteSource& source, const Request& request, Picture& picture) {
  const auto demuxer = media::movie::Demuxer::open(
      source, {.containers = "mov,matroska,webm,avi,mpeg,mpegts,mpegvideo,flv,asf,ogg,rm,mxf,nut",
               .bytes = limits.videoBytes,
               .packets = limits.videoPackets,
               .streams = limits.videoStreams,
               .largestAllocation = limits.videoAllocation});
  if (!demuxer) return false;
  AVFormatContext& context = demuxer->context();
  const int index = av_find_best_stream(&context, AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0);
  if (index < 0) return false;
  const AVStream& stream = *context.streams[index];
  const Frame frame = firstFrame(*demuxer, stream);
  auto result = frame ? pictureOf(*frame, stream, request) : std::nullopt;
  if (!result) return false;
  picture = *std::move(result);
  return true;
}

}  // namespace

}  // namespace desktop::pictures

extern "C" __attribute__((visibility("default"))) int desktopDecodeFrameWithFfmpeg(
    io::ByteSource* source, const desktop::pictures::Request* request,
    desktop::pictures::Picture* picture) {
  try {
    return desktop::pictures::decode(*source, *request, *picture) ? 0 : 1;
  } catch (const std::exception&) {
    return 1;
  }
}

extern "C" __attribute__((visibility("default"))) desktop::pictures::TileDecoder*
desktopMakeTileDecoderWithFfmpeg(const desktop::pictures::TileFormat* format) {
  try {
    return desktop::pictures::makeHevcTileDecoder(*format).release();
  } catch (const std::exception&) {
    return nullptr;
  }
}
