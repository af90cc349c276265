// SPDX-License-Identifier: MIT
#include "desktop/imageio/metadata_blocks.h"
#include "fuzz/targets/block_target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return fuzz::runBlock(data, size, desktop::imageio::readPhotoshopResources);
}
