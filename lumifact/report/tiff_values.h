// SPDX-License-Identifier: MIT
//
// The values of the "{TIFF}" section for reading.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/value.h"

namespace lumifact {

// The readable form of a value under a key of "{TIFF}": "Inch (2)". None where it stays raw.
std::optional<std::string> tiffReading(std::string_view key, const model::Value& value);

}  // namespace lumifact
