// SPDX-License-Identifier: MIT
//
// The kernel's filter of system calls, made of the rules.
#pragma once

namespace workers {

// From now on all threads of this process make the calls of the rules only. False where the kernel
// has no filters. REQUIRES: no new privileges.
bool filterCalls(bool hasThreads);

}  // namespace workers
