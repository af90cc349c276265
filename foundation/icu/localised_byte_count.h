// SPDX-License-Identifier: MIT
//
// Byte counts by ICU's locale data.
#pragma once

#include <optional>
#include <string>

#include "foundation/locale_data.h"

namespace foundation {

// A plain decimal ("-1.29") of the unit in the digits, separators and unit names of the locale;
// "0" is kilobytes, spelled out where the platform does so. None where ICU has no data.
// Thread-safe.
std::optional<std::string> localisedByteCount(const std::string& decimal, ByteUnit unit,
                                              const Locale& locale);

}  // namespace foundation
