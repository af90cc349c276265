// SPDX-License-Identifier: MIT
//
// The fixed fields of a sound sample entry in its three versions. QuickTime File Format, "Sound
// Sample Descriptions"; ISO/IEC 14496-12, 12.2.3.
#pragma once

#include <cstdint>

#include "media/movie/tracks/sample_entry.h"

namespace media::movie {

// Zero where the entry does not say. Borrows the entry.
struct SoundFields {
  int version = 0;  // 0, 1 or 2; QuickTime's
  std::uint32_t channels = 0;
  std::uint32_t bitsPerChannel = 0;
  double sampleRate = 0;              // hertz
  bool isVariable = false;            // packets differ in size
  std::uint32_t framesPerPacket = 0;  // version 1 and 2
  std::uint32_t bytesPerPacket = 0;   // version 1 and 2; of all channels
  std::uint32_t formatFlags = 0;      // version 2
  io::ByteView boxes;                 // what follows the fixed fields
};

SoundFields parseSoundFields(const SampleEntry& entry);

}  // namespace media::movie
