// SPDX-License-Identifier: MIT
//
// MPEG-4 elementary stream descriptors ("esds") and the AAC configuration in them. ISO/IEC 14496-1,
// 7.2.6; ISO/IEC 14496-3, 1.6.
#pragma once

#include <cstdint>
#include <optional>

#include "io/byte_view.h"

namespace media::movie {

// What an "esds" box says of a stream. Borrows the box.
struct ElementaryStream {
  std::uint8_t objectType = 0;  // objectTypeIndication: 0x40 is MPEG-4 audio
  io::ByteView configuration;   // DecoderSpecificInfo; empty where there is none
};

// The payload of an "esds" box; none where it holds no decoder configuration.
std::optional<ElementaryStream> parseElementaryStream(io::ByteView payload);

// An AudioSpecificConfig.
struct AacConfiguration {
  std::uint32_t objectType = 0;       // of the core: 2 is AAC LC, 23 LD, 39 ELD
  bool hasBandReplication = false;    // HE-AAC
  bool hasParametricStereo = false;   // HE-AAC v2
  std::uint32_t sampleRate = 0;       // of what is played, in hertz; 0 when not known
  std::uint32_t channels = 0;         // of what is played; 0 when not known
  std::uint32_t framesPerPacket = 0;  // of what is played
};

// None where the bytes end before the channels.
std::optional<AacConfiguration> parseAacConfiguration(io::ByteView bytes);

}  // namespace media::movie
