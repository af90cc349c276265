// SPDX-License-Identifier: MIT
//
// A parameter set is a list of fields without marks: to reach the VUI near its end, all that stands
// before it is parsed. Every loop is bounded by the largest count that the standards allow; a set
// that claims more, or ends early, gives the defaults.
#include "media/movie/tracks/video_usability.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>
#include <vector>

#include "media/movie/boxes/bit_reader.h"
#include "media/movie/boxes/limits.h"

namespace media::movie {

namespace {

using io::ByteOrder::big;

// The unit without its header and without emulation prevention bytes (00 00 03).
std::vector<std::uint8_t> rawPayload(io::ByteView unit, std::size_t headerSize) {
  std::vector<std::uint8_t> raw;
  if (unit.size() > limits.parameterSetBytes) return raw;
  int zeros = 0;
  for (const std::uint8_t byte : unit.from(headerSize).bytes()) {
    const bool isPrevention = zeros >= 2 && byte == 3;
    zeros = byte == 0 ? zeros + 1 : 0;
    if (!isPrevention) raw.push_back(byte);
  }
  return raw;
}

// Shapes of pixels by number. H.264, table E-1.
void readPixelShape(BitReader& reader, VideoUsability& usability) {
  struct Shape {
    std::uint8_t width;
    std::uint8_t height;
  };
  constexpr Shape shapes[] = {{0, 0},   {1, 1},    {12, 11}, {10, 11}, {16, 11}, {40, 33},
                              {24, 11}, {20, 11},  {32, 11}, {80, 33}, {18, 11}, {15, 11},
                              {64, 33}, {160, 99}, {4, 3},   {3, 2},   {2, 1}};
  constexpr std::uint32_t stated = 255;
  const std::uint32_t number = reader.bits(8);
  if (number == stated) {
    usability.pixelWidth = reader.bits(16);
    usability.pixelHeight = reader.bits(16);
  } else if (number < std::size(shapes)) {
    usability.pixelWidth = shapes[number].width;
    usability.pixelHeight = shapes[number].height;
  }
}

// vui_parameters() up to the chroma location; the same in both standards.
VideoUsability readUsability(BitReader& reader) {
  VideoUsability usability;
  if (reader.flag()) readPixelShape(reader, usability);
  if (reader.flag()) reader.skip(1);  // overscan
  if (reader.flag()) {                // video signal type
    reader.skip(3);
    usability.isFullRange = reader.flag();
    if (reader.flag()) {
      ColourCodes colour;
      colour.primaries = reader.bits(8);
      colour.transfer = reader.bits(8);
      colour.matrix = reader.bits(8);
      usability.colour = colour;
    }
  }
  if (reader.flag()) {
    usability.chromaTopField = reader.unsignedGolomb();
    usability.chromaBottomField = reader.unsignedGolomb();
  }
  return reader.isOverrun() ? VideoUsability() : usability;
}

// H.264, 7.3.2.1.1.1.
void skipAvcScalingList(BitReader& reader, int size) {
  std::int32_t last = 8;
  std::int32_t next = 8;
  for (int index = 0; index < size && !reader.isOverrun(); ++index) {
    if (next != 0) next = (last + reader.signedGolomb() % 256 + 256) % 256;
    if (next != 0) last = next;
  }
}

bool hasChromaFields(std::uint32_t profile) {
  constexpr std::uint32_t profiles[] = {100, 110, 122, 244, 44,  83, 86,
                                        118, 128, 138, 139, 134, 135};
  return std::ranges::count(profiles, profile) > 0;
}

void skipAvcChromaFields(BitReader& reader) {
  const std::uint32_t chromaFormat = reader.unsignedGolomb();
  if (chromaFormat == 3) reader.skip(1);
  reader.unsignedGolomb();  // bit depths
  reader.unsignedGolomb();
  reader.skip(1);
  if (!reader.flag()) return;
  for (int list = 0; list < (chromaFormat == 3 ? 12 : 8); ++list) {
    if (reader.flag()) skipAvcScalingList(reader, list < 6 ? 16 : 64);
  }
}

void skipAvcPictureOrder(BitReader& reader) {
  constexpr std::uint32_t largestCycle = 255;
  const std::uint32_t type = reader.unsignedGolomb();
  if (type == 0) reader.unsignedGolomb();
  if (type != 1) return;
  reader.skip(1);
  reader.signedGolomb();
  reader.signedGolomb();
  const std::uint32_t cycle = std::min(reader.unsignedGolomb(), largestCycle);
  for (std::uint32_t index = 0; index < cycle; ++index) reader.signedGolomb();
}

// H.264, 7.3.2.1.1: seq_parameter_set_data().
VideoUsability readAvcParameterSet(const std::vector<std::uint8_t>& raw) {
  BitReader reader{io::ByteView(raw)};
  const std::uint32_t profile = reader.bits(8);
  reader.skip(16);
  reader.unsignedGolomb();  // id
  if (hasChromaFields(profile)) skipAvcChromaFields(reader);
  reader.unsignedGolomb();  // frame number bits
  skipAvcPictureOrder(reader);
  reader.unsignedGolomb();  // reference frames
  reader.skip(1);
  reader.unsignedGolomb();  // width and height
  reader.unsignedGolomb();
  if (!reader.flag()) reader.skip(1);  // frames only, else adaptive fields
  reader.skip(1);
  if (reader.flag()) {
    for (int side = 0; side < 4; ++side) reader.unsignedGolomb();  // cropping
  }
  return reader.flag() && !reader.isOverrun() ? readUsability(reader) : VideoUsability();
}

// H.265, 7.3.3.
void skipProfileTierLevel(BitReader& reader, std::uint32_t subLayers) {
  std::array<bool, 8> hasProfile{};
  std::array<bool, 8> hasLevel{};
  reader.skip(96);
  for (std::uint32_t layer = 0; layer < subLayers; ++layer) {
    hasProfile[layer] = reader.flag();
    hasLevel[layer] = reader.flag();
  }
  if (subLayers > 0) reader.skip(std::uint64_t{2} * (8 - subLayers));
  for (std::uint32_t layer = 0; layer < subLayers; ++layer)
    reader.skip((hasProfile[layer] ? 88U : 0U) + (hasLevel[layer] ? 8U : 0U));
}

// H.265, 7.3.4.
void skipHevcScalingLists(BitReader& reader) {
  for (int size = 0; size < 4; ++size) {
    for (int matrix = 0; matrix < 6; matrix += size == 3 ? 3 : 1) {
      if (!reader.flag()) {
        reader.unsignedGolomb();
        continue;
      }
      if (size > 1) reader.signedGolomb();
      const int coefficients = std::min(64, 1 << (4 + (size << 1)));
      for (int index = 0; index < coefficients; ++index) reader.signedGolomb();
    }
  }
}

// H.265, 7.3.7. Returns how many pictures the set names; `previous` is that of the set before.
std::uint32_t skipPictureSet(BitReader& reader, bool isFirst, std::uint32_t previous) {
  constexpr std::uint32_t largestCount = 16;
  std::uint32_t count = 0;
  if (!isFirst && reader.flag()) {  // predicted from the set before
    reader.skip(1);
    reader.unsignedGolomb();
    for (std::uint32_t picture = 0; picture <= previous; ++picture) {
      const bool isUsed = reader.flag();
      if (isUsed || reader.flag()) ++count;
    }
    return std::min(count, 2 * largestCount);
  }
  count = std::min(reader.unsignedGolomb(), largestCount);
  count += std::min(reader.unsignedGolomb(), largestCount);
  for (std::uint32_t picture = 0; picture < count; ++picture) {
    reader.unsignedGolomb();
    reader.skip(1);
  }
  return count;
}

void skipPictureSets(BitReader& reader, std::uint32_t orderBits) {
  const std::uint32_t sets = std::min(reader.unsignedGolomb(), std::uint32_t{64});
  std::uint32_t pictures = 0;
  for (std::uint32_t set = 0; set < sets && !reader.isOverrun(); ++set)
    pictures = skipPictureSet(reader, set == 0, pictures);
  if (!reader.flag()) return;  // long-term pictures
  const std::uint32_t longTerm = std::min(reader.unsignedGolomb(), std::uint32_t{32});
  for (std::uint32_t picture = 0; picture < longTerm; ++picture) reader.skip(orderBits + 1);
}

// The chroma format, sizes and bit depths.
void skipHevcPictureFormat(BitReader& reader) {
  if (reader.unsignedGolomb() == 3) reader.skip(1);
  reader.unsignedGolomb();
  reader.unsignedGolomb();
  if (reader.flag()) {
    for (int side = 0; side < 4; ++side) reader.unsignedGolomb();  // conformance window
  }
  reader.unsignedGolomb();
  reader.unsignedGolomb();
}

void skipHevcCodingTools(BitReader& reader) {
  for (int field = 0; field < 6; ++field) reader.unsignedGolomb();  // block sizes and depths
  if (reader.flag() && reader.flag()) skipHevcScalingLists(reader);
  reader.skip(2);
  if (!reader.flag()) return;  // PCM
  reader.skip(8);
  reader.unsignedGolomb();
  reader.unsignedGolomb();
  reader.skip(1);
}

// H.265, 7.3.2.2.1: seq_parameter_set_rbsp().
VideoUsability readHevcParameterSet(const std::vector<std::uint8_t>& raw) {
  BitReader reader{io::ByteView(raw)};
  reader.skip(4);
  const std::uint32_t subLayers = reader.bits(3);
  reader.skip(1);
  skipProfileTierLevel(reader, subLayers);
  reader.unsignedGolomb();  // id
  skipHevcPictureFormat(reader);
  const std::uint32_t orderBits = reader.unsignedGolomb() + 4;
  const std::uint32_t layers = reader.flag() ? subLayers + 1 : 1;
  for (std::uint32_t field = 0; field < 3 * layers; ++field) reader.unsignedGolomb();
  skipHevcCodingTools(reader);
  skipPictureSets(reader, std::min(orderBits, std::uint32_t{16}));
  reader.skip(2);
  return reader.flag() && !reader.isOverrun() ? readUsability(reader) : VideoUsability();
}

// The first unit whose header's first byte, under the mask, is of that type; empty where there is
// none. It is taken as up to the end, or to the largest size that is read: what follows it there is
// never asked for.
io::ByteView findUnit(io::ByteView stream, std::uint8_t mask, std::uint8_t type) {
  for (std::uint64_t offset = 0; offset + 4 <= stream.size(); ++offset) {
    const io::ByteView rest = stream.from(offset);
    if (!rest.startsWith(std::string_view("\0\0\1", 3))) continue;
    const io::ByteView unit = rest.from(3);
    if ((unit.u8(0).value_or(0) & mask) == type)
      return *unit.sub(0, std::min<std::uint64_t>(unit.size(), limits.parameterSetBytes));
  }
  return {};
}

}  // namespace

VideoUsability usabilityOfAvcStream(io::ByteView stream) {
  const io::ByteView unit = findUnit(stream, 0x1F, 7);
  return unit.isEmpty() ? VideoUsability() : readAvcParameterSet(rawPayload(unit, 1));
}

VideoUsability usabilityOfHevcStream(io::ByteView stream) {
  const io::ByteView unit = findUnit(stream, 0x7E, 33 << 1);
  return unit.isEmpty() ? VideoUsability() : readHevcParameterSet(rawPayload(unit, 2));
}

VideoUsability usabilityOfAvcConfiguration(io::ByteView configuration) {
  const bool hasSet = (configuration.u8(5).value_or(0) & 0x1F) > 0;
  const auto set = configuration.sub(8, configuration.u16(6, big).value_or(0));
  if (!hasSet || !set) return {};
  return readAvcParameterSet(rawPayload(*set, 1));
}

VideoUsability usabilityOfHevcConfiguration(io::ByteView configuration) {
  constexpr std::uint8_t sequenceParameterSet = 33;
  const std::uint8_t arrays = configuration.u8(22).value_or(0);
  std::uint64_t offset = 23;
  for (int array = 0; array < arrays; ++array) {
    const std::uint8_t type = configuration.u8(offset).value_or(0) & 0x3F;
    const std::uint16_t units = configuration.u16(offset + 1, big).value_or(0);
    offset += 3;
    for (int unit = 0; unit < units; ++unit) {
      const auto bytes = configuration.sub(offset + 2, configuration.u16(offset, big).value_or(0));
      if (!bytes) return {};
      if (type == sequenceParameterSet) return readHevcParameterSet(rawPayload(*bytes, 2));
      offset += 2 + bytes->size();
    }
  }
  return {};
}

}  // namespace media::movie
