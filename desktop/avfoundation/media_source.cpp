// SPDX-License-Identifier: MIT
#include "desktop/avfoundation/media_source.h"

#include "desktop/avfoundation/ffmpeg_module.h"
#include "desktop/avfoundation/movie_layout.h"
#include "desktop/avfoundation/movie_reader.h"
#include "desktop/avfoundation/other_containers.h"

namespace desktop::avfoundation {

using MaybeAsset = std::optional<model::MediaAsset>;

model::Result<MaybeAsset> copyAsset(ByteSource& source) {
  if (source.size() == 0) return model::Error{"empty file"};
  const auto layout = readMovieLayout(source);
  if (!layout) return layout.error();
  if (!*layout) return MaybeAsset();
  auto asset = readMovie(source, **layout);
  if (!asset) return asset.error();
  return MaybeAsset(std::move(*asset));
}

model::Result<MaybeAsset> copyAssetOfFile(const std::string& path, ByteSource& source) {
  auto asset = copyAsset(source);
  if (!asset || *asset) return asset;
  const auto isOther = isOtherContainer(source);
  if (!isOther) return isOther.error();
  return *isOther ? readWithFfmpeg(path, source) : MaybeAsset();
}

}  // namespace desktop::avfoundation
