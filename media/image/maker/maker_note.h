// SPDX-License-Identifier: MIT
//
// A maker note: what a camera says in its maker's own way (EXIF tag 0x927C).
#pragma once

#include <cstdint>

#include "io/byte_view.h"

namespace media::image {

struct MakerNote {
  io::ByteView bytes;
  // Of the structure around it: some makers count offsets from that structure's first byte.
  std::uint64_t offset = 0;  // where the note begins in it
  io::ByteOrder order = io::ByteOrder::big;
};

}  // namespace media::image
