// SPDX-License-Identifier: MIT
//
// ISO base media boxes (ISO/IEC 14496-12): sizes, and the first numbers of each leaf, among which
// its entry counts and offsets are.
#include <algorithm>
#include <array>
#include <string_view>

#include "fuzz/structure.h"

namespace fuzz {

namespace {

constexpr std::array<std::string_view, 12> containers = {
    "moov", "trak", "mdia", "minf", "stbl", "edts", "udta", "ipco", "iprp", "dinf", "ilst", "gmhd"};

constexpr std::size_t probedPayload = 32;  // bytes of a leaf that are damaged number by number

void addLeaf(std::size_t payload, std::size_t end, Structure& structure) {
  for (std::size_t at = payload; at + 4 <= std::min(end, payload + probedPayload); at += 4) {
    structure.fields.push_back({.kind = Field::Kind::count, .at = at});
    structure.fields.push_back({.kind = Field::Kind::offset, .at = at});
  }
}

}  // namespace

void addBoxStructure(ByteView file, std::size_t start, std::size_t end, Structure& structure) {
  for (std::size_t at = start; at + 8 <= end;) {
    const std::size_t size32 = file.u32(at, ByteOrder::big).value_or(0);
    const auto type = file.sub(at + 4, 4);
    if (!type) return;
    const bool large = size32 == 1;
    const std::size_t size = large         ? file.u64(at + 8, ByteOrder::big).value_or(0)
                             : size32 == 0 ? end - at
                                           : size32;
    const std::size_t header = large ? 16 : 8;
    if (size < header || size > end - at) return;
    structure.boundaries.push_back(at);
    structure.fields.push_back({.kind = Field::Kind::count, .at = at});
    if (std::ranges::find(containers, type->text()) != containers.end()) {
      addBoxStructure(file, at + header, at + size, structure);
    } else if (type->text() == "meta") {
      // A full box in ISO files, a plain one in QuickTime's.
      const bool plain = file.from(at + header + 4).startsWith("hdlr");
      addBoxStructure(file, at + header + (plain ? 0 : 4), at + size, structure);
    } else if (type->text() != "mdat") {
      addLeaf(at + header, at + size, structure);
    }
    at += size;
  }
}

}  // namespace fuzz
