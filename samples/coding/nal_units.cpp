// SPDX-License-Identifier: MIT
#include "samples/coding/nal_units.h"

#include <algorithm>

namespace samples {

namespace {

using Unit = std::span<const std::uint8_t>;

// Types of units: H.264 table 7-1, HEVC table 7-1.
constexpr int avcSupplementary = 6;
constexpr int avcSequence = 7;
constexpr int avcPicture = 8;
constexpr int avcDelimiter = 9;
constexpr int hevcFirstNonPicture = 32;
constexpr int hevcVideo = 32;
constexpr int hevcSequence = 33;
constexpr int hevcPicture = 34;

int avcType(Unit unit) {
  return unit[0] & 0x1F;
}
int hevcType(Unit unit) {
  return (unit[0] >> 1) & 0x3F;
}

void addUnit(ByteWriter& out, Unit unit) {
  out.u32(unit.size());
  out.append(unit);
}

// The unit without the bytes that keep start codes from occurring inside it.
Bytes withoutEscapes(Unit unit) {
  Bytes bytes;
  int zeros = 0;
  for (const std::uint8_t byte : unit) {
    if (zeros >= 2 && byte == 3) {
      zeros = 0;
      continue;
    }
    zeros = byte == 0 ? zeros + 1 : 0;
    bytes.push_back(byte);
  }
  return bytes;
}

template <typename TypeOf>
Unit firstOfType(const std::vector<Unit>& units, int type, TypeOf typeOf) {
  const auto found =
      std::find_if(units.begin(), units.end(), [&](Unit unit) { return typeOf(unit) == type; });
  return found == units.end() ? Unit{} : *found;
}

}  // namespace

std::vector<Unit> nalUnits(std::span<const std::uint8_t> stream) {
  std::vector<Unit> units;
  std::size_t start = 0;  // of the current unit; 0 before the first start code
  for (std::size_t at = 0; at + 3 <= stream.size(); ++at) {
    if (stream[at] != 0 || stream[at + 1] != 0 || stream[at + 2] != 1) continue;
    if (start != 0) {
      // A start code of four bytes has its first zero before this one.
      const std::size_t end = stream[at - 1] == 0 ? at - 1 : at;
      units.push_back(stream.subspan(start, end - start));
    }
    start = at + 3;
  }
  if (start != 0 && start < stream.size()) units.push_back(stream.subspan(start));
  return units;
}

Bytes lengthPrefixedAvc(std::span<const std::uint8_t> stream) {
  ByteWriter out;
  for (const Unit unit : nalUnits(stream)) {
    const int type = avcType(unit);
    if (type < avcSupplementary || type > avcDelimiter) addUnit(out, unit);
  }
  return out.take();
}

Bytes lengthPrefixedHevc(std::span<const std::uint8_t> stream) {
  ByteWriter out;
  for (const Unit unit : nalUnits(stream))
    if (hevcType(unit) < hevcFirstNonPicture) addUnit(out, unit);
  return out.take();
}

Bytes avcConfiguration(std::span<const std::uint8_t> parameterSets) {
  const std::vector<Unit> units = nalUnits(parameterSets);
  const Unit sequence = firstOfType(units, avcSequence, avcType);
  const Unit picture = firstOfType(units, avcPicture, avcType);
  if (sequence.size() < 4 || picture.empty()) return {};
  ByteWriter out;
  out.u8(1);
  out.append(sequence.subspan(1, 3));  // profile, constraints, level
  out.u8(0xFF);                        // lengths of four bytes
  out.u8(0xE1);                        // one sequence parameter set
  out.u16(sequence.size());
  out.append(sequence);
  out.u8(1);
  out.u16(picture.size());
  out.append(picture);
  if (sequence[1] == 100) {
    // The High profile names chroma format 4:2:0 and 8 bits once more.
    for (const int part : {0xFD, 0xF8, 0xF8, 0}) out.u8(part);
  }
  return out.take();
}

Bytes hevcConfiguration(std::span<const std::uint8_t> parameterSets) {
  const std::vector<Unit> units = nalUnits(parameterSets);
  const Unit sets[] = {firstOfType(units, hevcVideo, hevcType),
                       firstOfType(units, hevcSequence, hevcType),
                       firstOfType(units, hevcPicture, hevcType)};
  // After the unit's header and one byte of identifiers, a sequence parameter set has the twelve
  // bytes of profile, compatibility, constraints and level that the record repeats.
  const Bytes sequence = withoutEscapes(sets[1]);
  if (sets[0].empty() || sequence.size() < 15 || sets[2].empty()) return {};
  ByteWriter out;
  out.u8(1);
  out.append(std::span(sequence).subspan(3, 12));
  out.u16(0xF000);  // no spatial segmentation
  out.u8(0xFC);     // parallelism unknown
  out.u8(0xFD);     // chroma format 4:2:0
  out.u8(0xF8);     // 8 bits of luminance
  out.u8(0xF8);     // 8 bits of colour
  out.u16(0);       // frame rate unknown
  out.u8(0x0F);     // one temporal layer, nested; lengths of four bytes
  out.u8(3);
  int type = hevcVideo;
  for (const Unit set : sets) {
    out.u8(0x80 | type++);  // complete: none inside the stream
    out.u16(1);
    out.u16(set.size());
    out.append(set);
  }
  return out.take();
}

}  // namespace samples
