// SPDX-License-Identifier: MIT
//
// The item location box. ISO/IEC 14496-12, 8.11.3.
#pragma once

#include <cstdint>
#include <vector>

#include "io/byte_view.h"
#include "io/iso_box.h"

namespace media::image {

// Where one item lies: ranges of the file, or of the item data box.
struct HeifLocation {
  bool isInItemData = false;
  std::vector<io::ByteRange> extents;  // an end of ~0 means: to the end of what it lies in
};

// The location of an item, out of the payload of an "iloc" box. Without extents where the box does
// not have the item, or has it in another file or inside another item.
HeifLocation findHeifLocation(io::ByteView locations, std::uint32_t item);

}  // namespace media::image
