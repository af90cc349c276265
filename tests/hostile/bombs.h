// SPDX-License-Identifier: MIT
//
// Small files of every format that claim, or unpack to, more than any machine should give for them.
#pragma once

#include <string>
#include <vector>

#include "tests/hostile/small_files.h"

namespace hostile {

struct Bomb {
  std::string name;  // with its format's extension
  Bytes bytes;
};

// Pictures whose headers claim enormous sizes, whose data unpack to gigabytes, and whose tables and
// metadata do either.
std::vector<Bomb> pictureBombs();
// Other containers of a thousand streams, with absurd pictures and tables of gigabytes; movies that
// claim as much.
std::vector<Bomb> movieBombs();

// A PNG of one colour that is as large as it says.
Bytes plainPng(std::uint32_t width, std::uint32_t height);

}  // namespace hostile
