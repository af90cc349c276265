// SPDX-License-Identifier: MIT
//
// The whole library on disk.
#pragma once

#include <string>

#include "model/result.h"

namespace samples {

// What became of a call.
enum class Outcome {
  written,  // every file was made
  current,  // the folder already holds this generation
};

enum class Rewrite { ifOutdated, always };

// Makes the library in a folder, which is created where it is missing; files of the library's
// names are replaced, others left alone. The same bytes and modification times each time.
//
// Errors: a folder or file that cannot be written, an encoder that is missing.
model::Result<Outcome> makeLibrary(const std::string& folder, Rewrite rewrite);

}  // namespace samples
