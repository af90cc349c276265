// SPDX-License-Identifier: MIT
//
// The arguments of a line of the phone's system log, as the compiler lays them out for it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "io/byte_view.h"
#include "model/result.h"

namespace device::emulated {

struct LogArgument {
  enum class Kind : std::uint8_t { number = 0, text = 2, object = 4 };

  Kind kind = Kind::number;
  std::uint64_t value = 0;  // a number, or an address
};

// Errors: a buffer that is cut off or has more than its arguments; a head that does not say what is
// in it; arguments of other kinds; one that readers of the log could not see.
model::Result<std::vector<LogArgument>> readLogArguments(io::ByteView buffer);

}  // namespace device::emulated
