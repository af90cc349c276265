// SPDX-License-Identifier: MIT
#include "desktop/avfoundation/ffmpeg_module.h"

#include "desktop/io/on_demand_module.h"

namespace desktop::avfoundation {

std::optional<model::MediaAsset> readWithFfmpeg(const std::string& name, ByteSource& source) {
  static const auto read = reinterpret_cast<ReadAssetWithFfmpeg>(
      functionOfModule("desktop_ffmpeg_reader.so", ffmpegModuleFunction));
  model::MediaAsset asset;
  if (read == nullptr || read(name.c_str(), &source, &asset) != 0) return std::nullopt;
  return asset;
}

}  // namespace desktop::avfoundation
