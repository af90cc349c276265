// SPDX-License-Identifier: MIT
#include "media/movie/boxes/four_char_text.h"

#include "model/utf8.h"

namespace media::movie {

std::string fourCharText(model::FourCharCode code) {
  std::string bytes;
  for (int shift = 24; shift >= 0; shift -= 8) {
    const auto byte = static_cast<char>((code >> shift) & 0xFF);
    if (byte == 0) break;
    bytes += byte;
  }
  return model::latin1ToUtf8(bytes);
}

}  // namespace media::movie
