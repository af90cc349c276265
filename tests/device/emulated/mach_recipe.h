// SPDX-License-Identifier: MIT
//
// Small libraries of the phone's kind, put together byte by byte.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "device/loading/mach_library.h"

namespace device::emulated {

using Bytes = std::vector<std::uint8_t>;

// What a library is made of: at first a page of each segment. A test changes what it is about.
struct MachRecipe {
  std::vector<loading::Segment> segments = {
      {"__TEXT", 0, 0x4000, 0, 0x4000, 5, 5, {}},
      {"__DATA", 0x4000, 0x4000, 0x4000, 0x4000, 3, 3, {}},
      {"__LINKEDIT", 0x8000, 0x4000, 0x8000, 0x1000, 1, 1, {}},
  };
  Bytes rebases = {};
  Bytes bindings = {};
  Bytes lazyBindings = {};
  Bytes data = {};  // at the beginning of __DATA

  Bytes build() const;
};

}  // namespace device::emulated
