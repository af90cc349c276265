// SPDX-License-Identifier: MIT
//
// The versions of the phone's own libraries, as a text states them.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

#include "model/result.h"

namespace device::loading {

// By install name, the compatibility version: 16, 8 and 8 bits, as in a load command.
using LibraryVersions = std::map<std::string, std::uint32_t, std::less<>>;

// A line a library: its install name, a tab and "150.0.0". Lines that begin with # are passed over.
// Errors: any other line, with the line in the reason.
model::Result<LibraryVersions> parseLibraryVersions(std::string_view text);

// The table in a file. Errors: as above, and that the file cannot be read.
model::Result<LibraryVersions> readLibraryVersions(const std::string& path);

// "150.0.0"
std::string versionText(std::uint32_t version);

}  // namespace device::loading
