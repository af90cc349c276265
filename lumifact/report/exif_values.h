// SPDX-License-Identifier: MIT
//
// The values of the "{Exif}" section for reading.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/value.h"

namespace lumifact {

// The readable form of a value under a key of "{Exif}", as a rule its meaning with the raw code
// behind it: "Spot (3)", "f/1.8", "1/120s (0.008333333333333333)". None where the value stays raw.
std::optional<std::string> exifReading(std::string_view key, const model::Value& value);

}  // namespace lumifact
