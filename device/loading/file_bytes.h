// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/result.h"

namespace device::loading {

using Bytes = std::vector<std::uint8_t>;

// All bytes of a file. Errors: it cannot be read, with its path in the reason.
model::Result<Bytes> readFileBytes(const std::string& path);

}  // namespace device::loading
