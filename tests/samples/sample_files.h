// SPDX-License-Identifier: MIT
//
// The library on disk, for the tests that read it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace samples {

// The path of a file of the library that is read, and of the second one.
std::string libraryPath(const std::string& relative);
std::string againPath(const std::string& relative);

// Every file below a folder, relative to it, in order.
std::vector<std::string> filesBelow(const std::string& folder);

// Up to `count` bytes from `offset` on.
std::vector<std::uint8_t> bytesAt(const std::string& path, std::uint64_t offset, std::size_t count);

}  // namespace samples
