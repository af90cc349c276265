// SPDX-License-Identifier: MIT
#include "desktop/pictures/decoders/tile_decoder.h"

#include "desktop/pictures/decoders/ffmpeg_frames.h"
#include "io/on_demand_module.h"

namespace desktop::pictures {

MakeTileDecoderWithFfmpeg tileDecoderMaker() {
  static const auto make = reinterpret_cast<MakeTileDecoderWithFfmpeg>(
      io::functionOfModule(ffmpegFramesModule, ffmpegTilesFunction));
  return make;
}

std::unique_ptr<TileDecoder> makeTileDecoder(const TileFormat& format) {
  const MakeTileDecoderWithFfmpeg make = tileDecoderMaker();
  return std::unique_ptr<TileDecoder>(make == nullptr ? nullptr : make(&format));
}

}  // namespace desktop::pictures
