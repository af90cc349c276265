// SPDX-License-Identifier: MIT
//
// A script, line by line: words, and the numbers among them.
#include <cstdint>

#include "desktop/script/script_line.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view text(reinterpret_cast<const char*>(data), size);
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const auto words = desktop::script::wordsOf(text.substr(0, end));
    if (words)
      for (const auto& word : *words) static_cast<void>(desktop::script::numberOf(word));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return 0;
}
