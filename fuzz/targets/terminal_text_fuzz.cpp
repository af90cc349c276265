// SPDX-License-Identifier: MIT
//
// Any bytes on a terminal: valid text without anything that a terminal obeys, and nothing is left
// to write out a second time.
#include <cstdint>
#include <cstdlib>

#include "foundation/terminal_text.h"
#include "model/utf8.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  for (const auto keep : {foundation::Keep::nothing, foundation::Keep::lineBreaks}) {
    const std::string safe = terminalSafe(text, keep);
    if (!model::isValidUtf8(safe) || terminalSafe(safe, keep) != safe) std::abort();
  }
  return 0;
}
