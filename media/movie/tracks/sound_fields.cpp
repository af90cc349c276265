// SPDX-License-Identifier: MIT
#include "media/movie/tracks/sound_fields.h"

#include <bit>

namespace media::movie {

namespace {

using io::ByteOrder::big;

void takeFirstVersion(SoundFields& fields, io::ByteView bytes) {
  constexpr std::int16_t variableCompression = -2;
  fields.isVariable =
      static_cast<std::int16_t>(bytes.u16(28, big).value_or(0)) == variableCompression;
  fields.framesPerPacket = bytes.u32(36, big).value_or(0);
  fields.bytesPerPacket = bytes.u32(44, big).value_or(0);  // "bytes per frame" there
  fields.boxes = bytes.from(52);
}

void takeSecondVersion(SoundFields& fields, io::ByteView bytes) {
  const std::uint64_t size = bytes.u32(36, big).value_or(0);
  fields.sampleRate = std::bit_cast<double>(bytes.u64(40, big).value_or(0));
  fields.channels = bytes.u32(48, big).value_or(0);
  fields.bitsPerChannel = bytes.u32(56, big).value_or(0);
  fields.formatFlags = bytes.u32(60, big).value_or(0);
  fields.bytesPerPacket = bytes.u32(64, big).value_or(0);
  fields.framesPerPacket = bytes.u32(68, big).value_or(0);
  fields.isVariable = fields.bytesPerPacket == 0;
  fields.boxes = bytes.from(size < 72 ? 72 : size);
}

}  // namespace

SoundFields parseSoundFields(const SampleEntry& entry) {
  const io::ByteView bytes = entry.box.whole;
  // The first version of ISO files, in tables of version 1, has no fields of its own.
  const bool isIsoVersion = entry.format == FileFormat::isoBaseMedia && entry.tableVersion == 1;
  SoundFields fields;
  fields.version = isIsoVersion ? 0 : bytes.u16(16, big).value_or(0);
  fields.channels = bytes.u16(24, big).value_or(0);
  fields.bitsPerChannel = bytes.u16(26, big).value_or(0);
  fields.sampleRate = bytes.u32(32, big).value_or(0) / 65536.0;
  fields.boxes = bytes.from(36);
  if (fields.version == 1) takeFirstVersion(fields, bytes);
  if (fields.version == 2) takeSecondVersion(fields, bytes);
  if (fields.sampleRate == 0) fields.sampleRate = entry.mediaTimeScale;
  return fields;
}

}  // namespace media::movie
