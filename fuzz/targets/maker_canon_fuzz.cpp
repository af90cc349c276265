// SPDX-License-Identifier: MIT
#include "fuzz/targets/block_target.h"
#include "media/image/maker/maker_canon.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return fuzz::runBlock(data, size, [](io::ByteView note, model::Dictionary& properties) {
    for (const auto order : {io::ByteOrder::big, io::ByteOrder::little}) {
      media::image::readCanonMakerNote({note, 0, order}, properties);
    }
  });
}
