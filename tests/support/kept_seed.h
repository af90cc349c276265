// SPDX-License-Identifier: MIT
//
// What tests give to readers, kept as seeds for the fuzzers: they build every structure that a
// reader knows.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace support {

// Where LUMIFACT_SEEDS names a folder, the bytes become a file in it, named for what they are; too
// many bytes become none. Elsewhere nothing happens.
void keepSeed(std::span<const std::uint8_t> bytes);
void keepSeed(std::string_view bytes);

}  // namespace support
