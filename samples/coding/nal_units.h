// SPDX-License-Identifier: MIT
//
// The units that H.264 and HEVC streams consist of, and the configuration records that files put
// before them (ISO/IEC 14496-15).
#pragma once

#include <span>
#include <vector>

#include "samples/formats/byte_writer.h"

namespace samples {

// The units of a stream in which start codes (00 00 01) stand between them. Borrowed.
std::vector<std::span<const std::uint8_t>> nalUnits(std::span<const std::uint8_t> stream);

// The stream's pictures, each unit after its length in four bytes. Parameter sets and
// supplementary information are left out: the configuration record has the former.
Bytes lengthPrefixedAvc(std::span<const std::uint8_t> stream);
Bytes lengthPrefixedHevc(std::span<const std::uint8_t> stream);

// The content of "avcC" and "hvcC" from the parameter sets at a stream's head; empty where they
// are incomplete.
Bytes avcConfiguration(std::span<const std::uint8_t> parameterSets);
Bytes hevcConfiguration(std::span<const std::uint8_t> parameterSets);

}  // namespace samples
