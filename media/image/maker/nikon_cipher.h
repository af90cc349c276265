// SPDX-License-Identifier: MIT
//
// The cipher under which Nikon's cameras put parts of their maker notes.
#pragma once

#include <cstdint>
#include <span>

namespace media::image {

// Puts the clear bytes in the place of coded ones, the first of which is the first coded byte of
// its field. The same again codes them. The keys are the low byte of the camera's serial number and
// how many exposures it has made.
void decodeNikon(std::span<std::uint8_t> bytes, std::uint8_t serial, std::uint32_t shutterCount);

}  // namespace media::image
