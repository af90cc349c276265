// SPDX-License-Identifier: MIT
//
// Any image, told by its content, and the report of it.
#include <cstdint>

#include "desktop/imageio/image_source.h"
#include "lumifact/report/data_parser.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  desktop::MemorySource source({data, data + size});
  auto properties = desktop::imageio::copyProperties(source);
  if (!properties || !*properties) return 0;
  std::optional<std::string> coordinates;
  static_cast<void>(lumifact::DataParser::parseDataToString(**properties, coordinates));
  return 0;
}
