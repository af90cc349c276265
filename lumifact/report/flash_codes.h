// SPDX-License-Identifier: MIT
//
// What the flash did, by the code of EXIF tag 0x9209 (Flash).
#pragma once

#include <cstdint>
#include <string_view>

namespace lumifact {

// The mode's name, to be followed by " (code)"; a name for the unknown outside the table.
std::string_view flashMode(std::int64_t code);

}  // namespace lumifact
