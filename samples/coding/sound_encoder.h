// SPDX-License-Identifier: MIT
//
// A soft tone, as AAC through libavcodec or as it is.
#pragma once

#include <vector>

#include "model/result.h"
#include "samples/formats/byte_writer.h"

namespace samples {

inline constexpr int soundRate = 44100;        // samples a second
inline constexpr int samplesPerPacket = 1024;  // of AAC

// A slow chord, one channel, -1 to 1. The same seed gives the same chord.
std::vector<float> softChord(std::uint32_t seed, int sampleCount);

// Signed 16-bit little-endian samples.
Bytes linearPcm(const std::vector<float>& samples);

struct CodedSound {
  Bytes configuration;         // AudioSpecificConfig (ISO/IEC 14496-3)
  std::vector<Bytes> packets;  // of 1,024 samples each
};

// Errors: an encoder that is missing or fails.
model::Result<CodedSound> encodeAac(const std::vector<float>& samples);

}  // namespace samples
