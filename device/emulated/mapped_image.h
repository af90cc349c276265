// SPDX-License-Identifier: MIT
//
// A library in memory: its segments, with every pointer complete, protected as the file says.
#pragma once

#include <functional>
#include <span>
#include <string>

#include "device/loading/mach_library.h"
#include "model/result.h"

namespace device::emulated {

// The address of a symbol under the name that the file has for it, or null where nobody has it.
using SymbolLookup = std::function<const void*(const std::string& symbol)>;

// Maps the library, whose address 0 comes to lie at the beginning of the answer; it stays for the
// life of the process. REQUIRES: no rule of the phone's loader is broken.
//
// Errors: addresses beyond what an extension may take; symbols that nobody has, all of them by
// name; what the system says where there is no memory.
model::Result<std::span<std::uint8_t>> mapImage(const loading::MachLibrary& library,
                                                const SymbolLookup& symbol);

}  // namespace device::emulated
