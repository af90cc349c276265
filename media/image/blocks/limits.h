// SPDX-License-Identifier: MIT
//
// How much the readers of this room take from one file: the one table of their limits. Files of
// real cameras stay far below; what lies beyond is left out, so that damaged and hostile files
// cost little time and memory.
#pragma once

#include <cstddef>
#include <cstdint>

namespace media::image {

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
  // Other metadata blocks
  std::size_t iccTags;             // rows of a profile's tag table, and languages of its name
  std::size_t photoshopResources;  // resources looked at in one block
  std::size_t xmpElements;         // tags, and likewise attributes, in one packet
  std::size_t xmpNamespaces;       // declarations in force at one place
  std::size_t xmpDepth;            // values inside each other
  // Containers
  std::size_t jpegSegments;      // segments before the first scan
  std::size_t jpegStrayBytes;    // bytes passed over in search of one marker
  std::size_t pngChunks;         // chunks walked
  std::size_t pngMetadataBytes;  // bytes read and decompressed of all chunks
  std::size_t gifExtensions;     // blocks before the first image
  std::size_t gifSubBlocks;      // pieces of all of them
  std::size_t webpChunks;        // chunks walked
  std::size_t heifItems;         // items of a file
  std::size_t heifReferences;    // pairs of items that refer to each other
  std::size_t heifProperties;    // properties of all items
  std::size_t heifExtents;       // pieces that one item lies in
  std::size_t heifTableBytes;    // bytes of one table of items
  std::size_t jp2Boxes;          // boxes walked at one level
  std::size_t exrAttributes;     // attributes walked
  // Raw files and the rarer kinds
  std::uint64_t rareKindBytes;   // bytes read of one file, whatever is left out for it
  std::uint64_t rawSensorBytes;  // bytes looked at in front of a sensor's data
  std::size_t rawRecords;        // records looked at in one directory
  std::size_t ciffHeaps;         // heaps inside each other or side by side
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
    .iccTags = 256,
    .photoshopResources = 1024,
    .xmpElements = 100'000,
    .xmpNamespaces = 64,
    .xmpDepth = 8,
    .jpegSegments = 4096,
    .jpegStrayBytes = 65'536,
    .pngChunks = 32'768,
    .pngMetadataBytes = 6 << 20,
    .gifExtensions = 1024,
    .gifSubBlocks = 65'536,
    .webpChunks = 16'384,
    .heifItems = 16'384,
    .heifReferences = 65'536,
    .heifProperties = 16'384,
    .heifExtents = 256,
    .heifTableBytes = 1 << 20,
    .jp2Boxes = 1024,
    .exrAttributes = 1024,
    .rareKindBytes = 128 << 10,
    .rawSensorBytes = 4096,
    .rawRecords = 512,
    .ciffHeaps = 32,
};

}  // namespace media::image
