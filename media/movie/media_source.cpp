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

using MaybeMovie = std::optional<MovieFile>;

model::Result<MaybeMovie> copyAsset(io::ByteSource& source) {
  if (source.size() == 0) return model::Error{"empty file"};
  const auto layout = readMovieLayout(source);
  if (!layout) return layout.error();
  if (!*layout) return MaybeMovie();
  auto movie = readMovie(source, **layout);
  if (!movie) return movie.error();
  return MaybeMovie(std::move(*movie));
}

model::Result<MaybeMovie> copyAssetOfFile(const std::string& path, io::FileSource& file,
                                          Waiting waiting) {
  auto movie = copyAsset(file);
  if (!movie || *movie) return movie;
  const auto isOther = isOtherContainer(file);
  if (!isOther) return isOther.error();
  if (!*isOther) return MaybeMovie();
  if (waiting == Waiting::allowed) return readOtherContainer(file);
  return ContainerShelf::ofProcess().find(path, file).value_or(model::Error{beingRead});
}

bool isBeingRead(const model::Error& error) {
  return error.reason == beingRead;
}

}  // namespace media::movie
