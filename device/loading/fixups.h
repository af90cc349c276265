// SPDX-License-Identifier: MIT
//
// The places that the loader writes to when it maps a library: pointers into the library itself
// (rebases), and pointers to symbols of others (binds). Both are told by a small byte code.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "device/loading/mach_library.h"
#include "model/result.h"

namespace device::loading {

// A pointer in a segment.
struct Place {
  std::uint64_t segment = 0;
  std::uint64_t offset = 0;
};

struct Bind {
  Place place;
  std::int64_t ordinal = 0;  // which library, from 1; zero and less are not a library of the list
  std::int64_t addend = 0;
  bool isWeak = false;  // whether the symbol may be missing
  std::string symbol;
};

// Errors: an opcode that is unknown, a text or number that is cut short, and more places than a
// library of any sense has.
model::Result<std::vector<Place>> readRebases(io::ByteView opcodes);

// Of binds that are made at once, or of those that are made at a first call: then each ends with
// the opcode that ends all of the others.
enum class BindTime { atOnce, atFirstCall };
model::Result<std::vector<Bind>> readBinds(io::ByteView opcodes, BindTime time);

}  // namespace device::loading
