// SPDX-License-Identifier: MIT
//
// zlib streams, as PNG and TIFF hold them.
#pragma once

#include "samples/formats/byte_writer.h"

namespace samples {

Bytes deflated(const Bytes& bytes);

// The CRC-32 of a chunk of a PNG.
std::uint32_t crc32Of(std::span<const std::uint8_t> bytes);

}  // namespace samples
