// SPDX-License-Identifier: MIT
#include "lumifact/report/four_char_text.h"

#include "model/utf8.h"

namespace lumifact {

std::string fourCharText(model::FourCharCode code) {
  std::string text;
  for (int shift = 24; shift >= 0; shift -= 8) {
    const auto byte = static_cast<unsigned char>(code >> shift);
    if (byte == 0) break;
    model::appendUtf8(text, byte);
  }
  return text;
}

}  // namespace lumifact
