// SPDX-License-Identifier: MIT
//
// How much of one movie is read at most, so that a hostile file costs little time and memory.
#pragma once

#include <cstdint>

namespace media::movie {

struct Limits {
  int topLevelBoxes;                 // of a file
  int fragments;                     // "moof" boxes that are read
  int boxes;                         // inside "moov"
  int fragmentBoxes;                 // inside all fragments together
  int tracks;                        // of a movie
  int descriptionsPerTrack;          // sample entries
  std::uint64_t descriptionBytes;    // sample description tables of all tracks together
  std::uint64_t tableBytes;          // time-to-sample and sample size tables, all together
  int editsPerTrack;                 // entries of an edit list
  std::uint64_t inflatedMovieBytes;  // a compressed movie header
  int metadataKeys;                  // of a key table, timed or not
  std::uint64_t keyTableBytes;       // of a key table
  std::uint64_t textBytes;           // a metadata value
  std::uint64_t artworkBytes;        // a metadata value that is a picture
  std::uint64_t metadataBytes;       // all metadata values together
  std::uint64_t parameterSetBytes;   // an H.264 or HEVC sequence parameter set
};

inline constexpr Limits limits = {
    .topLevelBoxes = 65536,
    .fragments = 8192,
    .boxes = 16384,
    .fragmentBoxes = 131072,
    .tracks = 256,
    .descriptionsPerTrack = 16,
    .descriptionBytes = 512 << 10,
    .tableBytes = 16 << 20,
    .editsPerTrack = 4096,
    .inflatedMovieBytes = 16 << 20,
    .metadataKeys = 1024,
    .keyTableBytes = 256 << 10,
    .textBytes = 64 << 10,
    .artworkBytes = 4 << 20,
    .metadataBytes = 8 << 20,
    .parameterSetBytes = 4 << 10,
};

}  // namespace media::movie
