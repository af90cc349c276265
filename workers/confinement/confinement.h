// SPDX-License-Identifier: MIT
//
// What a worker process gives up before it reads the first byte of a stranger's file.
#pragma once

#include <cstddef>
#include <string>

namespace workers {

// What a worker may have. All of it holds for the process as a whole, to its end.
struct Confinement {
  std::size_t memory = 0;      // bytes of addresses, beyond those that its libraries take
  std::size_t frameBytes = 0;  // of the frame; without one it writes nothing
  bool hasThreads = false;
};

// Confines the calling process: no files but those that are handed to it, no network, no other
// processes, no new privileges, nothing that another process may look into, no memory that is
// written and then run, and no more memory than it may have. It ends with the thread that started
// it. Returns what the system refuses ("system call filter, landlock"), empty where that is
// nothing; all else holds then.
//
// REQUIRES: one thread; everything that a library loads or opens by itself has been loaded.
std::string confine(const Confinement& confinement);

}  // namespace workers
