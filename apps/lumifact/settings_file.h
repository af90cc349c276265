// SPDX-License-Identifier: MIT
//
// Writing the settings file, so that a host that reads it at any moment sees the old or the new
// one, whole.
#pragma once

#include <functional>
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

enum class AfterEdit { write, removeIfEmpty };

// Changes what a settings file holds. The new file takes the old one's place in one step and keeps
// its format, mode and, where the system allows, its owner; a link is followed to the file that it
// leads to. A missing file is made, with its folders, as XML. Runs of this function wait for each
// other.
//
// Errors: a file that is no property list, which is left as it is; what the system says of a file
// or folder that cannot be read or written.
std::optional<model::Error> editSettingsFile(const std::string& path,
                                             const std::function<void(model::Dictionary&)>& edit,
                                             AfterEdit after = AfterEdit::write);

}  // namespace lumifact::tool
