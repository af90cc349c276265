// SPDX-License-Identifier: MIT
//
// Seconds since 1970 as cameras without a time zone count them, by the clock where they are.
#pragma once

#include <cstdint>
#include <optional>

#include "model/value.h"

namespace media::image {

// The text that Exif has for it ("2003:11:10 17:39:26"); none for 0, a clock that was never set.
std::optional<model::Value> exifTextOfUnixTime(std::uint32_t seconds);

}  // namespace media::image
