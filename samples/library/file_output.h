// SPDX-License-Identifier: MIT
//
// Files put onto the disk.
#pragma once

#include <optional>
#include <string>

#include "model/result.h"
#include "model/value.h"
#include "samples/movies/movie_file.h"

namespace samples {

// Writes a file, with its hole if it has one, and sets its modification time.
// Errors: what the system says, after the path.
std::optional<model::Error> writeFile(const std::string& path, const FileContent& content,
                                      model::Date modified);

}  // namespace samples
