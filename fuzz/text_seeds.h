// SPDX-License-Identifier: MIT
//
// Seeds for the readers of texts and property lists, which no sample holds.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace fuzz {

// Each with a name of its own.
std::vector<std::pair<std::string, std::string>> textSeeds();

}  // namespace fuzz
