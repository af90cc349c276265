// SPDX-License-Identifier: MIT
//
// Text of the code page that old programs mean by "Latin": letters, quotes and dashes stand where
// Latin-1 has control codes. Windows-1252.
#pragma once

#include <string>
#include <string_view>

namespace media::image {

// Bytes read as UTF-8 where they are valid UTF-8, else each byte as that code page has it; the five
// that stand for nothing become U+FFFD. The result is valid UTF-8.
std::string utf8OrWindowsLatin(std::string_view bytes);

}  // namespace media::image
