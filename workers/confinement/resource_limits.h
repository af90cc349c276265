// SPDX-License-Identifier: MIT
//
// How much a worker may take, as the system's limits on a process.
#pragma once

#include "workers/confinement/allowance.h"

namespace workers {

// Whether all of them could be set.
bool limitResources(const Confinement& confinement);

}  // namespace workers
