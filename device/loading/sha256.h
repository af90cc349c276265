// SPDX-License-Identifier: MIT
//
// The hash of code signatures (FIPS 180-4).
#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace device::loading {

std::array<std::uint8_t, 32> sha256(std::span<const std::uint8_t> bytes);

}  // namespace device::loading
