// SPDX-License-Identifier: MIT
//
// File sizes for reading, as the platform's byte count formatter writes them.
#pragma once

#include <cstdint>
#include <string>

#include "foundation/locale.h"

namespace foundation {

// The size in the file style (decimal units): "Zero KB", "1 byte", "999 bytes", "12 KB",
// "1.2 MB", "1.23 GB". Negative sizes carry a minus.
std::string byteCountText(std::int64_t bytes, const Locale& locale);

}  // namespace foundation
