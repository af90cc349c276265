// SPDX-License-Identifier: MIT
//
// Arguments told apart: options with their values, and words.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "apps/lumifact/command_line/command.h"
#include "apps/lumifact/command_line/option.h"
#include "model/result.h"

namespace lumifact::tool {

struct Arguments {
  std::vector<Given> options;
  std::vector<std::string> words;
  std::optional<model::Error> error;  // of the first option that does not read
};

// Options are "--name VALUE", "--name=VALUE", "-n VALUE" and "-nVALUE"; letters may stand together
// ("-r0"). A value may look like anything. All behind "--" are words, and so are "-", the empty
// text, and what begins like a negative number, unless it reads as letters ("-0").
Arguments readArguments(const Tool& tool, const std::vector<std::string>& arguments);

}  // namespace lumifact::tool
