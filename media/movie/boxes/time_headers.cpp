// SPDX-License-Identifier: MIT
#include "media/movie/boxes/time_headers.h"

#include <algorithm>
#include <limits>

#include "media/movie/boxes/limits.h"
#include "media/movie/boxes/saturating.h"

namespace media::movie {

namespace {

using io::ByteOrder::big;

// A duration whose bits are all set means "not known".
std::uint64_t knownDuration(io::ByteView bytes, std::uint64_t offset, bool isWide) {
  if (isWide) {
    const std::uint64_t value = bytes.u64(offset, big).value_or(0);
    return value == std::numeric_limits<std::uint64_t>::max() ? 0 : value;
  }
  const std::uint32_t value = bytes.u32(offset, big).value_or(0);
  return value == std::numeric_limits<std::uint32_t>::max() ? 0 : value;
}

// 16.16 fixed point.
double fixedAt(io::ByteView bytes, std::uint64_t offset) {
  return static_cast<std::int32_t>(bytes.u32(offset, big).value_or(0)) / 65536.0;
}

}  // namespace

std::optional<TimeHeader> parseTimeHeader(io::ByteView payload) {
  const bool isWide = payload.u8(0).value_or(0) == 1;
  const std::uint64_t needed = isWide ? 32 : 20;
  if (payload.size() < needed) return std::nullopt;
  TimeHeader header;
  header.creationTime = isWide ? payload.u64(4, big).value_or(0) : payload.u32(4, big).value_or(0);
  header.timeScale = payload.u32(isWide ? 20 : 12, big).value_or(0);
  header.duration = knownDuration(payload, isWide ? 24 : 16, isWide);
  return header;
}

std::optional<TrackHeader> parseTrackHeader(io::ByteView payload) {
  const bool isWide = payload.u8(0).value_or(0) == 1;
  const std::uint64_t matrix = isWide ? 52 : 40;
  if (payload.size() < matrix + 44) return std::nullopt;
  TrackHeader header;
  header.trackID = static_cast<std::int32_t>(payload.u32(isWide ? 20 : 12, big).value_or(0));
  header.duration = knownDuration(payload, isWide ? 28 : 20, isWide);
  header.transform = {fixedAt(payload, matrix),      fixedAt(payload, matrix + 4),
                      fixedAt(payload, matrix + 12), fixedAt(payload, matrix + 16),
                      fixedAt(payload, matrix + 24), fixedAt(payload, matrix + 28)};
  header.size = {payload.u32(matrix + 36, big).value_or(0) / 65536.0,
                 payload.u32(matrix + 40, big).value_or(0) / 65536.0};
  return header;
}

std::uint64_t editListDuration(io::ByteView payload) {
  const bool isWide = payload.u8(0).value_or(0) == 1;
  const std::uint64_t entrySize = isWide ? 20 : 12;
  const std::uint64_t count = payload.u32(4, big).value_or(0);
  std::uint64_t sum = 0;
  for (std::uint64_t index = 0; index < count; ++index) {
    const auto entry = payload.sub(8 + index * entrySize, entrySize);
    if (!entry || index == static_cast<std::uint64_t>(limits.editsPerTrack)) break;
    sum = saturatingAdd(sum, knownDuration(*entry, 0, isWide));
  }
  return sum;
}

std::optional<double> secondsOf(std::uint64_t ticks, std::uint32_t timeScale) {
  if (ticks == 0 || timeScale == 0) return std::nullopt;
  return static_cast<double>(ticks) / timeScale;
}

std::optional<model::Date> dateOfCreationTime(std::uint64_t creationTime) {
  constexpr std::uint64_t secondsFrom1904To1970 = 2082844800;
  if (creationTime == 0) return std::nullopt;
  if (creationTime >= secondsFrom1904To1970) creationTime -= secondsFrom1904To1970;
  return model::Date{static_cast<double>(creationTime)};
}

}  // namespace media::movie
