// SPDX-License-Identifier: MIT
//
// Running another program and reading what it says.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "model/value.h"

namespace bench {

// Whether a program of that name is on the PATH.
bool isInstalled(const std::string& program);

// What the program wrote to its standard output, its messages dropped; none where it cannot be
// started. The first argument is the program's name.
std::optional<std::string> outputOf(const std::vector<std::string>& arguments);

// JSON as a value; null where it does not parse.
model::Value parseJson(const std::string& text);

}  // namespace bench
