// SPDX-License-Identifier: MIT
//
// The places where a shared library may be cut off.
#pragma once

#include <cstddef>
#include <set>
#include <string_view>

namespace support {

// Sizes, smaller than the whole, at which something in the library's bytes begins or ends: its
// header, each row of its tables, each segment and section; and sizes one byte off.
std::set<std::size_t> cutsOfLibrary(std::string_view library);

}  // namespace support
