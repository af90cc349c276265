// SPDX-License-Identifier: MIT
#include "media/movie/ffmpeg_module.h"

#include "io/on_demand_module.h"

namespace media::movie {

std::optional<model::MediaAsset> readWithFfmpeg(const std::string& name, io::ByteSource& source) {
  static const auto read = reinterpret_cast<ReadAssetWithFfmpeg>(
      io::functionOfModule("media_ffmpeg_reader.so", ffmpegModuleFunction));
  model::MediaAsset asset;
  if (read == nullptr || read(name.c_str(), &source, &asset) != 0) return std::nullopt;
  return asset;
}

}  // namespace media::movie
