// SPDX-License-Identifier: MIT
//
// A video as the report reads it: tracks, format descriptions and metadata, under the names of the
// platform's media framework.
#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "model/geometry.h"
#include "model/value.h"

namespace model {

// A four-character code, most significant byte first: 'vide' is 0x76696465.
using FourCharCode = std::uint32_t;

// The code of a four-character literal: fourCharCode("vide").
constexpr FourCharCode fourCharCode(const char (&text)[5]) {
  FourCharCode code = 0;
  for (int index = 0; index < 4; ++index)
    code = (code << 8) | static_cast<unsigned char>(text[index]);
  return code;
}

// A fact about the asset or a track, such as its make or its location.
struct MetadataItem {
  std::optional<std::string> commonKey;  // "make", "location", ...; none for other keys
  std::optional<Value> value;

  bool operator==(const MetadataItem&) const = default;
};

// The fields of the platform's stream basic description. Zero where the codec has none.
struct AudioStreamDescription {
  double sampleRate = 0;  // in hertz
  FourCharCode formatID = 0;
  std::uint32_t formatFlags = 0;
  std::uint32_t bytesPerPacket = 0;
  std::uint32_t framesPerPacket = 0;
  std::uint32_t bytesPerFrame = 0;
  std::uint32_t channelsPerFrame = 0;
  std::uint32_t bitsPerChannel = 0;

  bool operator==(const AudioStreamDescription&) const = default;
};

// How the samples of a track are coded.
struct FormatDescription {
  FourCharCode mediaType = 0;     // 'vide', 'soun', 'meta', ...
  FourCharCode mediaSubType = 0;  // the codec: 'avc1', 'mp4a', 'mebx', ...
  std::int32_t width = 0;         // encoded pixels; 0 where it is no video
  std::int32_t height = 0;
  std::optional<AudioStreamDescription> audio;  // of sound only
  Dictionary extensions;

  bool operator==(const FormatDescription&) const = default;
};

struct Track {
  std::int32_t trackID = 0;
  std::string mediaType;  // "vide", "soun", "meta", ...
  std::vector<FormatDescription> formatDescriptions;
  Size naturalSize;  // pixels, before the transform
  AffineTransform preferredTransform;
  double duration = 0;                     // seconds of the time range; NaN when invalid
  float estimatedDataRate = 0;             // bits per second
  float nominalFrameRate = 0;              // frames per second
  std::optional<double> minFrameDuration;  // seconds; none when invalid
  std::vector<MetadataItem> commonMetadata;

  bool operator==(const Track&) const = default;
};

struct MediaAsset {
  std::vector<Track> tracks;
  std::vector<MetadataItem> commonMetadata;
  // Facts beside the report: the whole duration in seconds, and when the movie says it was made.
  double duration = 0;
  std::optional<Date> creationDate;

  bool operator==(const MediaAsset&) const = default;
};

}  // namespace model
