// SPDX-License-Identifier: MIT
//
// The records of a CIFF file: heaps inside each other, each with its directory at its end. Canon,
// "CIFF Specification on Image Data File", 1.0.
#pragma once

#include <cstdint>
#include <functional>

#include "io/iso_box.h"
#include "io/source_reader.h"

namespace media::image {

struct CiffRecord {
  std::uint16_t heap = 0;  // the code of the heap that it lies in; 0 for the outermost
  std::uint16_t code = 0;
  io::ByteRange bytes;  // in the file
};

// Calls for every record of a heap and of those inside it, the outer ones first, until the limits
// are reached. Returns whether the outermost heap has a directory.
bool forEachCiffRecord(io::SourceReader& file, io::ByteRange heap, io::ByteOrder order,
                       const std::function<void(const CiffRecord&)>& take);

}  // namespace media::image
