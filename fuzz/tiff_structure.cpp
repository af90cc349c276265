// SPDX-License-Identifier: MIT
//
// TIFF directories: Exif, GPS, interoperability and maker note ones included.
#include "fuzz/structure.h"

namespace fuzz {

namespace {

constexpr std::uint16_t makerNoteTag = 0x927C;
constexpr std::size_t appleHeader = 14;  // bytes before the directory of a note
constexpr std::size_t nikonHeader = 10;  // bytes before the structure in a note

bool pointsToDirectory(std::uint16_t tag) {
  return tag == 0x8769 || tag == 0x8825 || tag == 0xA005 || tag == 0x014A;
}

struct TiffWalk {
  ByteView file;
  std::size_t base;
  ByteOrder order;
  Structure& structure;

  void addDirectory(std::size_t at) {
    const std::size_t count = file.u16(at, order).value_or(0);
    structure.boundaries.push_back(at);
    structure.fields.push_back(
        {.kind = Field::Kind::count, .at = at, .width = 2, .order = order, .base = base});
    for (std::size_t index = 0; index < count; ++index) addEntry(at + 2 + index * 12);
    const std::size_t next = at + 2 + count * 12;
    structure.fields.push_back(
        {.kind = Field::Kind::offset, .at = next, .order = order, .base = base});
  }

  void addEntry(std::size_t at) {
    const auto tag = file.u16(at, order).value_or(0);
    const auto value = file.u32(at + 8, order).value_or(0);
    structure.boundaries.push_back(at);
    structure.fields.push_back(
        {.kind = Field::Kind::count, .at = at + 4, .order = order, .base = base});
    structure.fields.push_back(
        {.kind = Field::Kind::offset, .at = at + 8, .order = order, .base = base});
    if (pointsToDirectory(tag)) addDirectory(base + value);
    if (tag == makerNoteTag) addMakerNote(base + value);
  }

  // Canon's has no name before its directory.
  void addMakerNote(std::size_t note) {
    if (file.from(note).startsWith("Apple iOS")) {
      TiffWalk{file, note, ByteOrder::big, structure}.addDirectory(note + appleHeader);
    } else if (file.from(note).startsWith("Nikon")) {
      addTiffStructure(file, note + nikonHeader, structure);
    } else {
      TiffWalk{file, note, order, structure}.addDirectory(note);
    }
  }
};

}  // namespace

void addTiffStructure(ByteView file, std::size_t start, Structure& structure) {
  const ByteOrder order = file.u8(start) == std::uint8_t{'I'} ? ByteOrder::little : ByteOrder::big;
  structure.boundaries.push_back(start);
  structure.fields.push_back(
      {.kind = Field::Kind::offset, .at = start + 4, .order = order, .base = start});
  TiffWalk walk{file, start, order, structure};
  walk.addDirectory(start + file.u32(start + 4, order).value_or(0));
}

}  // namespace fuzz
