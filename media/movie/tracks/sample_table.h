// SPDX-License-Identifier: MIT
//
// What the sample tables of a track add up to: how many samples, how long, how many bytes. ISO/IEC
// 14496-12, 8.6.1.2 and 8.7.3.
#pragma once

#include <cstdint>

#include "media/movie/boxes/movie_walk.h"

namespace media::movie {

// Zero where nothing is known.
struct SampleTotals {
  std::uint64_t count = 0;          // samples
  std::uint64_t bytes = 0;          // of all samples
  std::uint64_t ticks = 0;          // of all samples, in the time scale of the media
  std::uint32_t smallestDelta = 0;  // ticks of the shortest sample
  bool hasConstantSize = false;     // one size was stated for all samples
};

// Adds what a "stts" box tells: ticks and the smallest delta. Deltas of zero and negative ones do
// not count as the smallest. Count and ticks are of the entries that are there.
void addTimeToSample(MovieWalk& walk, const io::IsoBox& box, SampleTotals& totals);

// Adds what a "stsz" or "stz2" box tells: count and bytes. Bytes stay 0 where the table is shorter
// than its count. An "stts" box that was read before gives way to its count.
void addSampleSizes(MovieWalk& walk, const io::IsoBox& box, SampleTotals& totals);

// Keeps the smaller of a known smallest delta and a new one.
void takeDelta(SampleTotals& totals, std::uint32_t delta);

}  // namespace media::movie
