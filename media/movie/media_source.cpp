// SPDX-License-Identifier: MIT
#include "media/movie/media_source.h"

#include "media/movie/boxes/movie_layout.h"
#include "media/movie/movie_reader.h"
#include "media/movie/other/container_shelf.h"
#include "media/movie/other/other_containers.h"

namespace media::movie {

namespace {

constexpr char beingRead[] = "being read";

}  // namespace

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

model::Result<std::optional<MovieFile>> copyAssetOfFile(const std::string& path,
                                                        io::FileSource& file, Waiting waiting) {
  auto asset = copyAsset(file);
  if (!asset) return asset.error();
  if (*asset) return std::optional(MovieFile{**std::move(asset)});
  const auto isOther = isOtherContainer(file);
  if (!isOther) return isOther.error();
  if (!*isOther) return std::optional<MovieFile>();
  if (waiting == Waiting::allowed) return readOtherContainer(file);
  return ContainerShelf::ofProcess().find(path, file).value_or(model::Error{beingRead});
}

bool isBeingRead(const model::Error& error) {
  return error.reason == beingRead;
}

}  // namespace media::movie
