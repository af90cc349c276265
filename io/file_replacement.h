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
// and whose owner where the system allows that; a link itself is replaced. Answers why it could
// not; then the old file is as it was. Returns when the bytes are on the disk.
std::optional<model::Error> replaceFile(const std::filesystem::path& path, std::string_view bytes);

}  // namespace io
