// SPDX-License-Identifier: MIT
//
// Bounded decompression of zlib streams.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "io/byte_view.h"

namespace media::image {

// What a zlib stream decompresses to. None where it is damaged, breaks off, or gives more than
// `budget` bytes. However it ends, the budget is lessened by what was decompressed, so that many
// small streams cannot cost more than one large one.
std::optional<std::vector<std::uint8_t>> inflateBytes(io::ByteView stream, std::size_t& budget);

}  // namespace media::image
