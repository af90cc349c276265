// SPDX-License-Identifier: MIT
//
// Where a media file's structure lies: what the seed corpus is cut and damaged at. It trusts its
// input: the samples are well-formed.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "io/byte_view.h"

namespace fuzz {

using io::ByteOrder;
using io::ByteView;

// A number in the file that says how many or where.
struct Field {
  enum class Kind { count, offset };

  Kind kind = Kind::count;
  std::size_t at = 0;     // where its bytes lie in the file
  std::size_t width = 4;  // bytes: 1, 2, 4 or 8
  ByteOrder order = ByteOrder::big;
  std::size_t base = 0;  // what an offset counts from
};

struct Structure {
  std::vector<std::size_t> boundaries;  // where a segment, chunk, box, directory or entry begins
  std::vector<Field> fields;
};

// The structure of a file by its content; empty for a kind that is not known.
Structure structureOf(ByteView file);

// The pieces, each adding what it finds from `start` on.
void addTiffStructure(ByteView file, std::size_t start, Structure& structure);
void addBoxStructure(ByteView file, std::size_t start, std::size_t end, Structure& structure);
void addSegmentStructure(ByteView file, Structure& structure);  // JPEG
void addChunkStructure(ByteView file, Structure& structure);    // PNG
void addHeaderStructure(ByteView file, Structure& structure);   // GIF, BMP, RIFF

}  // namespace fuzz
