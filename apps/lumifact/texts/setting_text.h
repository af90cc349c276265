// SPDX-License-Identifier: MIT
//
// Settings from text, as they are given on the command line.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/result.h"
#include "model/value.h"

namespace lumifact::tool {

// The value that a text stands for, of the kind of the key's setting: true, false, yes, no, 1 or 0
// for a flag; a decimal integer; a decimal number. No range is checked.
// Errors: an unknown key (with the list of those known); a text that does not read.
model::Result<model::Value> settingFromText(std::string_view key, std::string_view text);

// Whether the key is one of the settings; the error names those that are.
std::optional<model::Error> checkSettingKey(std::string_view key);

}  // namespace lumifact::tool
