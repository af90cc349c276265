// SPDX-License-Identifier: MIT
#include "desktop/imageio/tiff_container.h"
#include "fuzz/targets/container_target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return fuzz::runContainer(data, size, desktop::imageio::readTiffFile);
}
