// SPDX-License-Identifier: MIT
//
// The header boxes of a movie, a track and its media: times, place and size. ISO/IEC 14496-12,
// 8.2.2, 8.3.2, 8.4.2, 8.6.6.
#pragma once

#include <cstdint>
#include <optional>

#include "io/byte_view.h"
#include "model/geometry.h"
#include "model/value.h"

namespace media::movie {

// "mvhd" or "mdhd".
struct TimeHeader {
  std::uint64_t creationTime = 0;  // seconds since 1904-01-01; 0 when not stated
  std::uint32_t timeScale = 0;     // ticks a second; 0 in damaged files
  std::uint64_t duration = 0;      // ticks; 0 when not known
};

// "tkhd".
struct TrackHeader {
  std::int32_t trackID = 0;
  std::uint64_t duration = 0;  // ticks of the movie; 0 when not known
  model::AffineTransform transform;
  model::Size size;  // pixels, before the transform
};

// The payload of a header box; none where it is too short.
std::optional<TimeHeader> parseTimeHeader(io::ByteView payload);
std::optional<TrackHeader> parseTrackHeader(io::ByteView payload);

// The sum of the segments of an edit list ("elst"), in ticks of the movie.
std::uint64_t editListDuration(io::ByteView payload);

// Ticks as seconds; none where either is zero.
std::optional<double> secondsOf(std::uint64_t ticks, std::uint32_t timeScale);

// When a movie says it was made; none when it does not. Times before 1970 are taken for seconds
// since 1970, which some recorders write.
std::optional<model::Date> dateOfCreationTime(std::uint64_t creationTime);

}  // namespace media::movie
