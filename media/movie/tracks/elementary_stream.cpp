// SPDX-License-Identifier: MIT
#include "media/movie/tracks/elementary_stream.h"

#include <algorithm>
#include <array>

#include "media/movie/boxes/bit_reader.h"

namespace media::movie {

namespace {

constexpr std::uint8_t streamTag = 3;
constexpr std::uint8_t decoderTag = 4;
constexpr std::uint8_t configurationTag = 5;

constexpr std::uint32_t bandReplication = 5;  // audio object types
constexpr std::uint32_t parametricStereo = 29;
constexpr std::uint32_t lowDelay = 23;
constexpr std::uint32_t enhancedLowDelay = 39;

// The content of a descriptor of that tag among those that lie one after the other. A length takes
// up to four bytes of seven bits. A length beyond the end is taken as up to the end.
std::optional<io::ByteView> findDescriptor(io::ByteView bytes, std::uint8_t wanted) {
  std::uint64_t offset = 0;
  while (const auto tag = bytes.u8(offset++)) {
    std::uint64_t length = 0;
    for (int digit = 0; digit < 4; ++digit) {
      const std::uint8_t byte = bytes.u8(offset++).value_or(0);
      length = (length << 7) | (byte & 0x7FU);
      if ((byte & 0x80) == 0) break;
    }
    const io::ByteView rest = bytes.from(offset);
    if (*tag == wanted) return rest.sub(0, std::min<std::uint64_t>(length, rest.size()));
    offset += length;
  }
  return std::nullopt;
}

// Where the descriptors inside a stream descriptor begin: behind its optional fields.
std::uint64_t innerOffset(io::ByteView stream) {
  const std::uint8_t flags = stream.u8(2).value_or(0);
  std::uint64_t offset = 3;
  if ((flags & 0x80) != 0) offset += 2;
  if ((flags & 0x40) != 0) offset += std::uint64_t{1} + stream.u8(offset).value_or(0);
  if ((flags & 0x20) != 0) offset += 2;
  return offset;
}

std::uint32_t readObjectType(BitReader& reader) {
  const std::uint32_t type = reader.bits(5);
  return type == 31 ? 32 + reader.bits(6) : type;
}

std::uint32_t readSampleRate(BitReader& reader) {
  constexpr std::array<std::uint32_t, 13> rates = {96000, 88200, 64000, 48000, 44100, 32000, 24000,
                                                   22050, 16000, 12000, 11025, 8000,  7350};
  const std::uint32_t index = reader.bits(4);
  if (index == 15) return reader.bits(24);
  return index < rates.size() ? rates[index] : 0;
}

std::uint32_t channelsOf(std::uint32_t configuration) {
  if (configuration == 7 || configuration == 12 || configuration == 14) return 8;
  if (configuration == 11) return 7;
  return configuration <= 6 ? configuration : 0;
}

// The first bits of the core's own configuration; leaves the reader behind them.
std::uint32_t readFrames(BitReader& reader, std::uint32_t objectType) {
  const bool isShort = reader.flag();
  if (objectType == lowDelay || objectType == enhancedLowDelay) return isShort ? 480 : 512;
  if (reader.flag()) reader.skip(14);  // core coder delay
  reader.skip(1);                      // extension flag
  return isShort ? 960 : 1024;
}

// The extension that older decoders skip: band replication behind the core's configuration.
void readExtension(BitReader& reader, AacConfiguration& aac) {
  constexpr std::uint32_t replicationMark = 0x2B7;
  constexpr std::uint32_t stereoMark = 0x548;
  if (reader.bitsLeft() < 16 || reader.bits(11) != replicationMark) return;
  if (readObjectType(reader) != bandReplication || !reader.flag()) return;
  aac.hasBandReplication = true;
  aac.sampleRate = readSampleRate(reader);
  if (reader.bitsLeft() < 12 || reader.bits(11) != stereoMark) return;
  aac.hasParametricStereo = reader.flag();
}

}  // namespace

std::optional<ElementaryStream> parseElementaryStream(io::ByteView payload) {
  const auto stream = findDescriptor(payload.from(4), streamTag);
  if (!stream) return std::nullopt;
  const auto decoder = findDescriptor(stream->from(innerOffset(*stream)), decoderTag);
  if (!decoder || decoder->isEmpty()) return std::nullopt;
  constexpr std::uint64_t decoderFields = 13;
  return ElementaryStream{
      decoder->u8(0).value_or(0),
      findDescriptor(decoder->from(decoderFields), configurationTag).value_or(io::ByteView())};
}

std::optional<AacConfiguration> parseAacConfiguration(io::ByteView bytes) {
  BitReader reader(bytes);
  AacConfiguration aac;
  aac.objectType = readObjectType(reader);
  aac.sampleRate = readSampleRate(reader);
  const std::uint32_t layout = reader.bits(4);
  aac.channels = channelsOf(layout);
  if (reader.isOverrun()) return std::nullopt;
  const bool isExplicit = aac.objectType == bandReplication || aac.objectType == parametricStereo;
  if (isExplicit) {
    aac.hasBandReplication = true;
    aac.hasParametricStereo = aac.objectType == parametricStereo;
    aac.sampleRate = readSampleRate(reader);
    aac.objectType = readObjectType(reader);
  }
  aac.framesPerPacket = readFrames(reader, aac.objectType);
  if (!isExplicit && layout != 0) readExtension(reader, aac);
  if (aac.hasBandReplication) aac.framesPerPacket *= 2;
  if (aac.hasParametricStereo && aac.channels == 1) aac.channels = 2;
  return aac;
}

}  // namespace media::movie
