// SPDX-License-Identifier: MIT
//
// Shared libraries looked at before they are mapped: one that is cut off would end the process with
// a signal, and one of another build would do anything.
#pragma once

#include <optional>
#include <string>

#include "io/byte_source.h"

namespace io {

// What a library says of itself.
struct LibraryFacts {
  // The version that a module of ours was built for; none where it is no such module.
  std::optional<std::string> moduleVersion;
};

// Reads the headers of a shared library (ELF, of this system's word size and byte order), and takes
// it only where all that they point at lies within the file.
//
// Errors: what the system says of a failed read; "no shared library"; "a shared library for another
// system"; "a shared library that is cut off".
model::Result<LibraryFacts> readLibraryFacts(ByteSource& source);

// The same for the file at a path. Errors: as above, and why it cannot be opened.
model::Result<LibraryFacts> readLibraryFacts(const std::string& path);

}  // namespace io
