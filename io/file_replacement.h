// SPDX-License-Identifier: MIT
//
// A file written as a whole: whoever reads it sees what was there or what is there now, and a
// failure leaves it as it was.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "model/result.h"

namespace io {

// Puts a file with these bytes in the place of the one that is there, whose permissions it takes,
// and whose owner where the system allows that; links are followed. Answers why it could not; then
// the old file is as it was, and nothing else is left. What a process left beside the file that was
// killed at this is removed. Returns when the bytes are on the disk.
//
// Errors: "Is a directory" and "not a regular file", which are not replaced; what the system says.
std::optional<model::Error> replaceFile(const std::filesystem::path& path, std::string_view bytes);

// The same for what somebody asked a program to write somewhere: a pipe or a terminal gets the
// bytes as they are.
std::optional<model::Error> writeOutput(const std::filesystem::path& path, std::string_view bytes);

// Where the links of a path lead, whether or not a file is there.
std::filesystem::path targetOfLinks(std::filesystem::path path);

}  // namespace io
