// SPDX-License-Identifier: MIT
//
// Any bytes on a terminal: valid text without anything that a terminal obeys, and nothing is left
// to write out a second time.
#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "foundation/terminal_text.h"
#include "model/utf8.h"

// Characters are looked at one by one, so that more of them are nothing new.
constexpr std::size_t mostBytes = 4096;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), std::min(size, mostBytes));
  for (const auto keep : {foundation::Keep::nothing, foundation::Keep::lineBreaks}) {
    const std::string safe = terminalSafe(text, keep);
    if (!model::isValidUtf8(safe) || terminalSafe(safe, keep) != safe) std::abort();
  }
  return 0;
}
