// SPDX-License-Identifier: MIT
//
// A movie, and the report of it.
#include <cstdint>

#include "desktop/avfoundation/media_source.h"
#include "lumifact/report/data_parser.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  desktop::MemorySource source({data, data + size});
  const auto asset = desktop::avfoundation::copyAsset(source);
  if (!asset || !*asset) return 0;
  model::Dictionary unused;
  std::optional<std::string> coordinates;
  static_cast<void>(lumifact::DataParser::parseAVURLAsset(&**asset, unused, coordinates));
  return 0;
}
