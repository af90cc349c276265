// SPDX-License-Identifier: MIT
//
// What most tests do: read bytes as a movie, and put one entry into a movie to read it.
#pragma once

#include <string>

#include "media/movie/media_source.h"
#include "tests/support/kept_seed.h"
#include "tests/support/movie_builder.h"
#include "tests/support/temporary_folder.h"

namespace media::movie {

// What came of reading the bytes: the asset, or "none", or "error: reason".
struct Reading {
  model::MediaAsset asset;
  std::string outcome = "asset";
  std::string shortfall = {};
};

inline Reading readBytes(const Bytes& bytes) {
  support::keepSeed(bytes);
  io::MemorySource source(bytes);
  auto movie = copyAsset(source);
  if (!movie) return {{}, "error: " + movie.error().reason};
  if (!*movie) return {{}, "none"};
  return {std::move((*movie)->asset), "asset", std::move((*movie)->shortfall)};
}

// What is read of a file of that name with these bytes.
inline model::Result<std::optional<MovieFile>> readFile(const std::string& name,
                                                        const Bytes& bytes) {
  support::keepSeed(bytes);
  const support::TemporaryFolder folder;
  const auto source = io::FileSource::open(folder.write(name, bytes));
  return copyAssetOfFile(name, **source);
}

// A movie of one track of ten samples.
struct OneTrack {
  std::string_view brand = "isom";
  std::string_view handlerType = "vide";
  Bytes entry = {};
  std::uint32_t tableVersion = 0;
  Bytes header = trackHeader(1, 1000, {1, 0, 0, 1, 0, 0}, 640, 480);
  Bytes mediaTimes = mediaHeader(1000, 1000);
  Bytes times = timeToSample({{10, 100}});
  Bytes sizes = constantSampleSize(100, 10);
  Bytes edits = {};
  Bytes more = {};        // at the end of the track
  Bytes movieBoxes = {};  // behind the track
};

inline Bytes oneTrackMovie(const OneTrack& parts) {
  const Bytes trak = track({.header = parts.header,
                            .edits = parts.edits,
                            .mediaHeader = parts.mediaTimes,
                            .handlerType = parts.handlerType,
                            .descriptions = sampleDescriptions({parts.entry}, parts.tableVersion),
                            .times = parts.times,
                            .sizes = parts.sizes,
                            .more = parts.more});
  return joined(
      {fileType(parts.brand), box("moov", {movieHeader(1000, 1000), trak, parts.movieBoxes})});
}

// The one track of such a movie; an empty one where it was not read.
inline model::Track readTrackOf(const OneTrack& parts) {
  const Reading reading = readBytes(oneTrackMovie(parts));
  return reading.asset.tracks.size() == 1 ? reading.asset.tracks.front() : model::Track();
}

// Its one description; an empty one where it was not read.
inline model::FormatDescription readEntry(std::string_view brand, std::string_view handlerType,
                                          const Bytes& entry, std::uint32_t tableVersion = 0) {
  const model::Track read = readTrackOf(
      {.brand = brand, .handlerType = handlerType, .entry = entry, .tableVersion = tableVersion});
  return read.formatDescriptions.size() == 1 ? read.formatDescriptions.front()
                                             : model::FormatDescription();
}

}  // namespace media::movie
