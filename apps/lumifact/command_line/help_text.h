// SPDX-License-Identifier: MIT
//
// What --help prints, made from the records of the tool and its commands.
#pragma once

#include <string>

#include "apps/lumifact/command_line/command.h"

namespace lumifact::tool {

// No line is longer than 80 columns.
std::string helpText(const Tool& tool);
std::string helpText(const Tool& tool, const Command& command);

}  // namespace lumifact::tool
