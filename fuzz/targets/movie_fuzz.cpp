// SPDX-License-Identifier: MIT
//
// A movie, and the report of it.
#include <cstdint>

#include "lumifact/report/data_parser.h"
#include "media/movie/media_source.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  io::MemorySource source({data, data + size});
  const auto movie = media::movie::copyAsset(source);
  if (!movie || !*movie) return 0;
  model::Dictionary unused;
  std::optional<std::string> coordinates;
  static_cast<void>(lumifact::DataParser::parseAVURLAsset(&(*movie)->asset, unused, coordinates));
  return 0;
}
