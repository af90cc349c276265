// SPDX-License-Identifier: MIT
#include "desktop/pictures/decoders/ffmpeg_frames.h"

#include "io/on_demand_module.h"

namespace desktop::pictures {

namespace {

DecodeFrameWithFfmpeg frameDecoder() {
  static const auto decode = reinterpret_cast<DecodeFrameWithFfmpeg>(
      io::functionOfModule(ffmpegFramesModule, ffmpegFramesFunction));
  return decode;
}

}  // namespace

void loadVideoDecoders() {
  static_cast<void>(frameDecoder());
}

model::Result<Picture> decodeVideoFrame(io::ByteSource& source, const Request& request) {
  const DecodeFrameWithFfmpeg decode = frameDecoder();
  if (decode == nullptr)
    return model::Error{std::string("no reader for videos is installed: ") + ffmpegFramesModule};
  Picture picture;
  if (decode(&source, &request, &picture) != 0)
    return model::Error{"no frame of the video can be decoded"};
  return picture;
}

}  // namespace desktop::pictures
