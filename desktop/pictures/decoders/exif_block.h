// SPDX-License-Identifier: MIT
//
// The two things that decoding wants from an Exif block. EXIF 2.31, 4.5.
#pragma once

#include <cstdint>
#include <vector>

#include "desktop/pictures/pixels/orientation.h"
#include "io/byte_view.h"

namespace desktop::pictures {

struct ExifBlock {
  Orientation orientation;              // IFD0's
  std::vector<std::uint8_t> thumbnail;  // IFD1's JPEG; empty where there is none
};

// Reads the TIFF structure of an Exif block. What is missing or damaged keeps its default.
ExifBlock readExifBlock(io::ByteView block);

}  // namespace desktop::pictures
