// SPDX-License-Identifier: MIT
//
// Small WebM files, as a browser records them: without an index, and without statistics.
#pragma once

#include <string_view>
#include <vector>

#include "tests/support/movie_builder.h"

namespace media::movie {

// An EBML element; its size takes eight bytes.
Bytes ebmlElement(std::uint32_t id, const Bytes& content);

// A packet of track 1, which is video of 320 by 240, or of track 2, which is sound.
struct WebmPacket {
  std::uint8_t track;
  std::uint16_t milliseconds;
  std::size_t size;
};

struct WebmTag {
  std::string_view name;
  std::string_view value;
};

// The tags are those of the video.
Bytes webmMovie(const std::vector<WebmPacket>& packets, const std::vector<WebmTag>& tags = {});

}  // namespace media::movie
