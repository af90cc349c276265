// SPDX-License-Identifier: MIT
#include "samples/formats/deflate.h"

#include <zlib.h>

namespace samples {

Bytes deflated(const Bytes& bytes) {
  uLongf size = compressBound(bytes.size());
  Bytes stream(size);
  // The buffer is as large as compressBound asks for, which leaves lack of memory as the only
  // failure; the stream is then empty.
  if (compress2(stream.data(), &size, bytes.data(), bytes.size(), 6) != Z_OK) size = 0;
  stream.resize(size);
  return stream;
}

std::uint32_t crc32Of(std::span<const std::uint8_t> bytes) {
  return static_cast<std::uint32_t>(crc32(0, bytes.data(), static_cast<uInt>(bytes.size())));
}

}  // namespace samples
