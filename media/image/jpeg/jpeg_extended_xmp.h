// SPDX-License-Identifier: MIT
//
// XMP that is too large for one JPEG segment: the main packet names the digest of a second one,
// which lies in pieces in further segments. XMP Specification, part 3, 1.1.3.1.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "io/source_reader.h"
#include "media/image/blocks/spliced_ranges.h"
#include "model/value.h"

namespace media::image {

class ExtendedXmp {
 public:
  // Remembers the segment if it holds a piece.
  void take(io::SourceReader& file, io::ByteRange segment);

  // Reads the packet that the main one names into the properties; nothing where there is none, a
  // piece is missing, or it is longer than the limit of embedded blocks.
  void read(io::SourceReader& file, SplicedRanges& mainPacket, model::Dictionary& properties);

 private:
  struct Piece {
    std::string digest;
    std::uint32_t fullLength;
    std::uint32_t offset;  // in the packet
    io::ByteRange bytes;
  };
  std::vector<Piece> _pieces;
};

}  // namespace media::image
