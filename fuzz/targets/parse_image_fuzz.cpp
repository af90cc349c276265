// SPDX-License-Identifier: MIT
#include <cstdint>

#include "apps/lumifact/json/parse_answer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view line(reinterpret_cast<const char*>(data), size);
  static_cast<void>(lumifact::tool::parseAnswer(lumifact::tool::ParseKind::image, line));
  return 0;
}
