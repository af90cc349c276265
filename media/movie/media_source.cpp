// SPDX-License-Identifier: MIT
#include "media/movie/media_source.h"

#include "media/movie/boxes/movie_layout.h"
#include "media/movie/ffmpeg_module.h"
#include "media/movie/movie_reader.h"
#include "media/movie/other_containers.h"

namespace media::movie {

using MaybeAsset = std::optional<model::MediaAsset>;

model::Result<MaybeAsset> copyAsset(io::ByteSource& source) {
  if (source.size() == 0) return model::Error{"empty file"};
  const auto layout = readMovieLayout(source);
  if (!layout) return layout.error();
  if (!*layout) return MaybeAsset();
  auto asset = readMovie(source, **layout);
  if (!asset) return asset.error();
  return MaybeAsset(std::move(*asset));
}

model::Result<MaybeAsset> copyAssetOfFile(const std::string& path, io::ByteSource& source) {
  auto asset = copyAsset(source);
  if (!asset || *asset) return asset;
  const auto isOther = isOtherContainer(source);
  if (!isOther) return isOther.error();
  return *isOther ? readWithFfmpeg(path, source) : MaybeAsset();
}

}  // namespace media::movie
