// SPDX-License-Identifier: MIT
#include "samples/movies/small_movies.h"

#include "samples/library/cameras.h"
#include "samples/movies/movie_file.h"
#include "samples/movies/sample_descriptions.h"

namespace samples {

namespace {

constexpr Movie smallMovie{.width = 640,
                           .height = 480,
                           .camera = &cameras::androidPhone,
                           .taken = {2019, 5, 4, 12, 30, 0}};

// A configuration without parameter sets.
Bytes emptyConfiguration(VideoCodec codec) {
  Bytes configuration(codec == VideoCodec::hevc ? 23 : 7);
  configuration.front() = 1;  // version
  return configuration;
}

// Half a second.
MovieTrack pictures(TrackKind kind, const Movie& movie) {
  constexpr std::uint32_t frameDuration = 20;
  return {.kind = kind,
          .samples = std::vector<TrackSample>(15, {Bytes(16), frameDuration}),
          .description = videoDescription(movie, emptyConfiguration(movie.codec)),
          .width = movie.width,
          .height = movie.height};
}

Bytes imageSequence() {
  Movie movie = smallMovie;
  movie.brand = MovieBrand::sequence;
  movie.codec = VideoCodec::hevc;
  return movieFile(movie, {pictures(TrackKind::images, movie)}).head;
}

Bytes phoneSound() {
  Movie movie = smallMovie;
  movie.brand = MovieBrand::android;
  return movieFile(movie, {{.kind = TrackKind::sound,
                            .timeScale = 8000,
                            .samples = std::vector<TrackSample>(25, {Bytes(32), 160}),
                            .description = amrDescription()}})
      .head;
}

// The movie box is the last one, and its metadata the end of it.
Bytes cutVideo() {
  constexpr std::size_t missing = 64;
  Bytes bytes = movieFile(smallMovie, {pictures(TrackKind::video, smallMovie)}).head;
  bytes.resize(bytes.size() - missing);
  return bytes;
}

}  // namespace

std::vector<SmallMovie> smallMovies() {
  return {
      {"sequence.heics", imageSequence()}, {"sound.3gp", phoneSound()}, {"cut.mov", cutVideo()}};
}

}  // namespace samples
