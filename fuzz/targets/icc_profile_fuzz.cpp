// SPDX-License-Identifier: MIT
#include <cstdint>

#include "desktop/imageio/metadata_blocks.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static_cast<void>(desktop::imageio::iccProfileName(desktop::ByteView({data, size})));
  return 0;
}
