// SPDX-License-Identifier: MIT
//
// A small good file of every kind that programs keep among photos, for being called something else.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace hostile {

using Bytes = std::vector<std::uint8_t>;

struct SmallFile {
  std::string extension;
  Bytes bytes;
};

// Pictures, videos, other containers, texts, and a file of nothing.
std::vector<SmallFile> smallFiles();

// WebP of one colour, a few bytes whatever its size. REQUIRES: sides of 1 to 16384.
Bytes webpOfOneColour(std::uint32_t width, std::uint32_t height);

}  // namespace hostile
