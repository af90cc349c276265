// SPDX-License-Identifier: MIT
//
// Text in the Mac OS Roman encoding, which QuickTime files of any age carry.
#pragma once

#include <string>
#include <string_view>

namespace media::movie {

// Each byte as its Mac OS Roman character (Apple's ROMAN.TXT mapping table).
std::string macRomanToUtf8(std::string_view bytes);

// Bytes read as UTF-8 where they are valid UTF-8, else as Mac OS Roman.
std::string utf8OrMacRoman(std::string_view bytes);

}  // namespace media::movie
