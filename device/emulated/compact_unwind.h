// SPDX-License-Identifier: MIT
//
// How exceptions pass through a library's functions, as the phone's linker writes it down: four
// bytes a function, in the section __unwind_info.
#pragma once

#include <cstdint>
#include <vector>

#include "io/byte_view.h"
#include "model/result.h"

namespace device::emulated {

// Offsets count from the image's beginning; 0 is none.
struct UnwindFunction {
  std::uint32_t begin = 0;
  std::uint32_t end = 0;  // where the next one begins
  std::uint32_t encoding = 0;
  std::uint32_t handlers = 0;  // the table of its catch clauses and clean-ups
};

struct CompactUnwind {
  std::vector<std::uint32_t> personalities;  // pointers to the functions that read such tables
  std::vector<UnwindFunction> functions;     // ascending
};

// What an encoding says.
enum class FrameKind : std::uint32_t { none = 0, leaf = 2, dwarf = 3, framePointer = 4 };
inline FrameKind frameKind(std::uint32_t encoding) {
  return static_cast<FrameKind>(encoding >> 24 & 0x0F);
}
// The personality's place in the list from 1 on; 0 is none.
inline std::uint32_t personalityOf(std::uint32_t encoding) {
  return encoding >> 28 & 0x03;
}

// Errors: another version; tables that are cut off, or whose functions do not ascend.
model::Result<CompactUnwind> readCompactUnwind(io::ByteView section);

}  // namespace device::emulated
