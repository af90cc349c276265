// SPDX-License-Identifier: MIT
//
// The title of a selection with its file size.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lumifact {

// The sum of the sizes, modulo 2^64 as the platform adds them: a size is signed, since a cached
// one may be negative; an asset without a readable size (none) adds 0.
std::uint64_t selectionSize(const std::vector<std::optional<std::int64_t>>& sizes);

// The stock title with the size in parentheses and a trailing blank, or the stock title as it is
// for 0 bytes. `byteCountText` makes the size's text from the sum read as a signed number.
std::string selectionTitle(std::string_view stockTitle, std::uint64_t totalSize,
                           const std::function<std::string(std::int64_t)>& byteCountText);

}  // namespace lumifact
