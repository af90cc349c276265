// SPDX-License-Identifier: MIT
//
// Fragmented movies: what the samples in "moof" boxes add up to. ISO/IEC 14496-12, 8.8.
#pragma once

#include <cstdint>
#include <map>

#include "media/movie/boxes/movie_layout.h"
#include "media/movie/tracks/sample_table.h"

namespace media::movie {

// What holds for the samples of a track where its fragments do not say ("trex").
struct FragmentDefaults {
  std::uint32_t duration = 0;  // ticks of the media
  std::uint32_t size = 0;      // bytes
};

// What "mvex" announces. Tracks by their identifier.
struct FragmentHeader {
  std::uint64_t duration = 0;  // of the whole movie, in its ticks; 0 when not stated
  std::map<std::uint32_t, FragmentDefaults> defaults;
};

FragmentHeader readFragmentHeader(MovieWalk& walk, const io::IsoBox& box);

// The totals of all fragments, by track. Fragments that cannot be read are left out.
std::map<std::uint32_t, SampleTotals> readFragments(io::ByteSource& source,
                                                    const MovieLayout& layout,
                                                    const FragmentHeader& header);

}  // namespace media::movie
