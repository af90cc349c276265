// SPDX-License-Identifier: MIT
//
// How much the readers of this room take from one file: the one table of their limits. Files of
// real cameras stay far below; what lies beyond is left out, so that damaged and hostile files
// cost little time and memory.
#pragma once

#include <cstddef>
#include <cstdint>

namespace desktop::imageio {

struct Limits {
  // TIFF structures (Exif blocks, TIFF files, maker notes)
  std::size_t ifdsPerStructure;    // IFDs read from one structure, each once
  std::size_t entriesPerIfd;       // entries looked at in one IFD
  std::size_t valuesPerField;      // numbers in one array
  std::size_t textBytes;           // bytes of one text; a longer one is cut
  std::size_t embeddedBytes;       // bytes of one block inside: XMP, IPTC, ICC, maker note
  std::size_t makerNoteEntries;    // entries looked at in a maker note's IFD
  std::size_t makerNoteValues;     // numbers in one array of a maker note
  std::size_t makerNoteTreeNodes;  // values in all property lists of a maker note
};

inline constexpr Limits limits = {
    .ifdsPerStructure = 32,
    .entriesPerIfd = 2048,
    .valuesPerField = 4096,
    .textBytes = 65'536,
    .embeddedBytes = 4 << 20,
    .makerNoteEntries = 256,
    .makerNoteValues = 256,
    .makerNoteTreeNodes = 20'000,
};

}  // namespace desktop::imageio
