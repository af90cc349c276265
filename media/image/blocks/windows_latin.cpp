// SPDX-License-Identifier: MIT
#include "media/image/blocks/windows_latin.h"

#include "model/utf8.h"

namespace media::image {

namespace {

// The bytes 0x80 to 0x9F.
constexpr char16_t letters[32] = {0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD,
                                  0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

char32_t letterOf(unsigned char byte) {
  return byte >= 0x80 && byte <= 0x9F ? letters[byte - 0x80] : byte;
}

}  // namespace

std::string utf8OrWindowsLatin(std::string_view bytes) {
  if (model::isValidUtf8(bytes)) return std::string(bytes);
  std::string text;
  for (const char byte : bytes) model::appendUtf8(text, letterOf(static_cast<unsigned char>(byte)));
  return text;
}

}  // namespace media::image
