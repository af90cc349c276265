// SPDX-License-Identifier: MIT
//
// Compact unwind information in the form that Linux reads: DWARF's call frames, as in .eh_frame.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "device/emulated/compact_unwind.h"

namespace device::emulated {

// The frames of an image at an address, ready to be registered: a list that ends with a zero word.
// `personalities` are the addresses of the functions themselves, in the order of the information's
// list. A function that never calls another has no frame, as nothing passes through it.
//
// Errors: a function that is described elsewhere (by DWARF), or names a personality that is not
// there.
model::Result<std::vector<std::uint8_t>> dwarfFrames(const CompactUnwind& unwind,
                                                     std::uint64_t imageAddress,
                                                     std::span<const std::uint64_t> personalities);

}  // namespace device::emulated
