// SPDX-License-Identifier: MIT
//
// The door to FFmpeg for the tiles of HEIF pictures, in the module that decodes frames.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "desktop/pictures/pixels/target_size.h"

namespace desktop::pictures {

// Decodes HEVC pictures that have a configuration in common. Used from one thread at a time.
class TileDecoder {
 public:
  virtual ~TileDecoder() = default;

  // Decodes one coded picture to opaque 0xAARRGGBB pixels in its own colours; rows lie `stride`
  // pixels apart. False where it cannot be decoded or has another size. REQUIRES: there is room for
  // rows of paddedWidth().
  virtual bool decode(std::span<const std::uint8_t> coded, std::uint32_t* pixels,
                      std::ptrdiff_t stride) = 0;
};

struct TileFormat {
  PixelSize size;                               // of a decoded picture
  std::span<const std::uint8_t> configuration;  // an HEVC configuration record; borrowed
};

// Null where FFmpeg, or the module, is not installed.
std::unique_ptr<TileDecoder> makeTileDecoder(const TileFormat& format);

// The module's function, under its C name: a decoder that the caller deletes, or null.
extern "C" {
using MakeTileDecoderWithFfmpeg = TileDecoder* (*)(const TileFormat* format);
}
inline constexpr char ffmpegTilesFunction[] = "desktopMakeTileDecoderWithFfmpeg";

// That function, loaded with its module; null where it is not installed.
MakeTileDecoderWithFfmpeg tileDecoderMaker();

}  // namespace desktop::pictures
