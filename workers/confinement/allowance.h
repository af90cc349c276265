// SPDX-License-Identifier: MIT
//
// How much a worker may have.
#pragma once

#include <cstddef>

namespace workers {

// What a worker may have. All of it holds for the process as a whole, to its end.
struct Confinement {
  std::size_t memory = 0;      // bytes of addresses, beyond those that its libraries take
  std::size_t frameBytes = 0;  // of the frame; without one it writes nothing
  bool hasThreads = false;
};

}  // namespace workers
