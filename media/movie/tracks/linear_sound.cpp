// SPDX-License-Identifier: MIT
#include "media/movie/tracks/linear_sound.h"

#include <cmath>

namespace media::movie {

namespace {

using model::AudioStreamDescription;
using model::FourCharCode;
using model::fourCharCode;

using io::ByteOrder::big;
constexpr std::uint32_t signedBig = linearIsSigned | linearIsBigEndian;
constexpr std::uint32_t floatBig = linearIsFloat | linearIsBigEndian;

// QuickTime File Format, "Sound Sample Description Formats"; ISO/IEC 23003-5.
struct LinearCode {
  FourCharCode code;
  std::uint32_t bits;  // of a sample; 0 where the entry says
  std::uint32_t flags;
};

constexpr LinearCode linearCodes[] = {
    {fourCharCode("lpcm"), 0, signedBig},
    {fourCharCode("twos"), 0, signedBig},
    {fourCharCode("sowt"), 0, linearIsSigned},
    {fourCharCode("raw "), 0, 0},
    {fourCharCode("NONE"), 0, 0},
    {fourCharCode("in24"), 24, signedBig},
    {fourCharCode("in32"), 32, signedBig},
    {fourCharCode("fl32"), 32, floatBig},
    {fourCharCode("fl64"), 64, floatBig},
    {fourCharCode("ipcm"), 0, signedBig},
    {fourCharCode("fpcm"), 0, floatBig},
};

const LinearCode* findLinearCode(FourCharCode code) {
  for (const LinearCode& row : linearCodes) {
    if (row.code == code) return &row;
  }
  return nullptr;
}

// Whether a QuickTime entry turns its samples to little-endian ("enda").
bool isTurned(const SoundFields& fields) {
  const auto wave = findPayload(fields.boxes, fourCharCode("wave"));
  const auto endian = findPayload(wave.value_or(fields.boxes), fourCharCode("enda"));
  return endian && endian->u16(0, big).value_or(0) == 1;
}

}  // namespace

AudioStreamDescription packedSound(double sampleRate, std::uint32_t channels,
                                   std::uint32_t bitsPerChannel, std::uint32_t flags) {
  const std::uint32_t bytes = bitsPerChannel / 8 + (bitsPerChannel % 8 != 0 ? 1 : 0);
  AudioStreamDescription audio;
  audio.sampleRate = std::isfinite(sampleRate) ? sampleRate : 0;
  audio.formatID = fourCharCode("lpcm");
  audio.formatFlags = flags | (bitsPerChannel % 8 == 0 ? linearIsPacked : 0);
  if (bytes <= 1) audio.formatFlags &= ~linearIsBigEndian;
  audio.framesPerPacket = 1;
  audio.bytesPerPacket = audio.bytesPerFrame = bytes * channels;
  audio.channelsPerFrame = channels;
  audio.bitsPerChannel = bitsPerChannel;
  return audio;
}

std::optional<AudioStreamDescription> linearSound(FourCharCode code, const SoundFields& fields) {
  const LinearCode* row = findLinearCode(code);
  if (row == nullptr) return std::nullopt;
  std::uint32_t bits = row->bits != 0 ? row->bits : fields.bitsPerChannel;
  std::uint32_t flags = row->flags;
  // The two oldest codes mean unsigned bytes, and words as 'twos' does.
  const bool isRaw = code == fourCharCode("raw ") || code == fourCharCode("NONE");
  if (isRaw && bits > 8) flags = signedBig;
  if (isTurned(fields)) flags &= ~linearIsBigEndian;
  if (const auto box = findPayload(fields.boxes, fourCharCode("pcmC"))) {
    if ((box->u8(4).value_or(0) & 1) != 0) flags &= ~linearIsBigEndian;
    bits = box->u8(5).value_or(0);
  }
  if (fields.version != 2) return packedSound(fields.sampleRate, fields.channels, bits, flags);
  AudioStreamDescription audio = packedSound(fields.sampleRate, fields.channels, bits, flags);
  audio.bitsPerChannel = fields.bitsPerChannel;
  audio.formatFlags = fields.formatFlags;
  audio.framesPerPacket = fields.framesPerPacket;
  audio.bytesPerPacket = audio.bytesPerFrame = fields.bytesPerPacket;
  return audio;
}

}  // namespace media::movie
