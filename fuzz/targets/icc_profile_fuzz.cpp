// SPDX-License-Identifier: MIT
#include <cstdint>

#include "media/image/blocks/metadata_blocks.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static_cast<void>(media::image::iccProfileName(io::ByteView({data, size})));
  return 0;
}
