// SPDX-License-Identifier: MIT
#include "fuzz/targets/block_target.h"
#include "media/image/maker/maker_nikon.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return fuzz::runBlock(data, size, media::image::readNikonMakerNote);
}
