// SPDX-License-Identifier: MIT
//
// One track of a movie, before it is laid out in a file.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "samples/library/item.h"

namespace samples {

struct TrackSample {
  Bytes data;
  std::uint32_t duration = 0;          // in the track's time scale
  std::int32_t compositionOffset = 0;  // shown so much later than decoded
  bool isKey = true;
  std::uint32_t units = 1;  // equal samples in it, each of `duration`; more than one for PCM only
};

enum class TrackKind { video, sound, metadata, images };

struct MovieTrack {
  TrackKind kind = TrackKind::video;
  std::uint32_t timeScale = 600;  // units a second
  std::vector<TrackSample> samples;
  Bytes description;             // the sample description, a whole box
  std::uint32_t mediaStart = 0;  // where the edit list begins, in the track's time scale
  int width = 0;                 // of video, before the rotation
  int height = 0;
  int rotation = 0;  // degrees clockwise
};

// In the track's time scale, all samples.
std::uint64_t mediaDuration(const MovieTrack& track);

}  // namespace samples
