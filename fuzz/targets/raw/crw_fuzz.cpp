// SPDX-License-Identifier: MIT
#include "fuzz/targets/container_target.h"
#include "media/image/raw/crw_container.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return fuzz::runContainer(data, size, media::image::readCrwFile);
}
