// SPDX-License-Identifier: MIT
//
// The names of the eight EXIF orientations (tag 0x0112). Two tables, which disagree on 2 and 3.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace lumifact {

// The name of an image's own orientation, as the report and the quick info show it; none outside
// 1 to 8.
std::optional<std::string_view> imageOrientationName(std::int64_t orientation);

// The name of the orientation inside "{TIFF}"; none outside 1 to 8.
std::optional<std::string_view> tiffOrientationName(std::int64_t orientation);

}  // namespace lumifact
