// SPDX-License-Identifier: MIT
//
// The tables of the link edit segment: where each lies, as the load commands tell.
#pragma once

#include <vector>

#include "device/loading/mach_library.h"

namespace device::loading {

Table rebaseTable(const MachLibrary& library);
Table bindTable(const MachLibrary& library);
Table weakBindTable(const MachLibrary& library);
Table lazyBindTable(const MachLibrary& library);
Table signatureTable(const MachLibrary& library);

// Those that are not empty, in the order in which they have to lie.
std::vector<Table> linkEditTables(const MachLibrary& library);

}  // namespace device::loading
