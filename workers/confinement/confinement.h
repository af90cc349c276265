// SPDX-License-Identifier: MIT
//
// What a worker process gives up before it reads the first byte of a stranger's file.
#pragma once

#include <string>

#include "workers/confinement/allowance.h"

namespace workers {

// Confines the calling process: no files but those that are handed to it, no network, no other
// processes, no new privileges, nothing that another process may look into, no memory that is
// written and then run, and no more memory than it may have. It ends with the thread that started
// it. Returns what the system refuses ("system call filter, landlock"), empty where that is
// nothing; all else holds then.
//
// REQUIRES: one thread; everything that a library loads or opens by itself has been loaded.
std::string confine(const Confinement& confinement);

}  // namespace workers
