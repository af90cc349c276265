// SPDX-License-Identifier: MIT
//
// What --help prints.
#pragma once

#include <string>
#include <string_view>

namespace lumifact::tool {

// The help of a command, or of the tool for an empty name. No line is longer than 80 columns.
std::string helpText(std::string_view command);

}  // namespace lumifact::tool
