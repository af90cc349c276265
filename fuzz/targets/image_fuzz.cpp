// SPDX-License-Identifier: MIT
//
// Any image, told by its content, and the report of it.
#include <cstdint>

#include "lumifact/report/data_parser.h"
#include "media/image/image_source.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  io::MemorySource source({data, data + size});
  auto properties = media::image::copyProperties(source);
  if (!properties || !*properties) return 0;
  std::optional<std::string> coordinates;
  static_cast<void>(lumifact::DataParser::parseDataToString(**properties, coordinates));
  return 0;
}
