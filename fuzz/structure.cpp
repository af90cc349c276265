// SPDX-License-Identifier: MIT
#include "fuzz/structure.h"

#include <algorithm>
#include <string_view>

namespace fuzz {

namespace {

bool isTiff(ByteView file, std::size_t start) {
  const auto block = file.from(start);
  return block.startsWith(std::string_view("II*\0", 4)) ||
         block.startsWith(std::string_view("IIU\0", 4)) ||
         block.startsWith(std::string_view("MM\0*", 4));
}

}  // namespace

void addSegmentStructure(ByteView file, Structure& structure) {
  std::size_t at = 2;
  while (file.u8(at) == 0xFF) {
    structure.boundaries.push_back(at);
    const auto marker = file.u8(at + 1).value_or(0);
    const auto length = file.u16(at + 2, ByteOrder::big).value_or(0);
    structure.fields.push_back({.kind = Field::Kind::count, .at = at + 2, .width = 2});
    const std::size_t exif = at + 10;  // behind "Exif\0\0"
    if (marker == 0xE1 && isTiff(file, exif)) addTiffStructure(file, exif, structure);
    if (marker == 0xDA) return;
    at += 2U + length;
  }
}

void addChunkStructure(ByteView file, Structure& structure) {
  std::size_t at = 8;
  while (const auto length = file.u32(at, ByteOrder::big)) {
    structure.boundaries.push_back(at);
    structure.boundaries.push_back(at + 8);
    structure.fields.push_back({.kind = Field::Kind::count, .at = at});
    const auto type = file.sub(at + 4, 4);
    if (type && type->text() == "eXIf") addTiffStructure(file, at + 8, structure);
    at += std::size_t{12} + *length;
  }
}

void addHeaderStructure(ByteView file, Structure& structure) {
  const std::size_t header = std::min<std::size_t>(file.size(), 64);
  for (std::size_t at = 2; at < header; at += 2) {
    structure.boundaries.push_back(at);
    structure.fields.push_back(
        {.kind = Field::Kind::count, .at = at, .width = 2, .order = ByteOrder::little});
  }
}

Structure structureOf(ByteView file) {
  Structure structure;
  if (file.startsWith("\xFF\xD8")) {
    addSegmentStructure(file, structure);
  } else if (file.startsWith("\x89PNG")) {
    addChunkStructure(file, structure);
  } else if (isTiff(file, 0)) {
    addTiffStructure(file, 0, structure);
  } else if (file.from(4).startsWith("ftyp") || file.from(4).startsWith("jP  ")) {
    addBoxStructure(file, 0, file.size(), structure);
  } else {
    addHeaderStructure(file, structure);
  }
  return structure;
}

}  // namespace fuzz
