// SPDX-License-Identifier: MIT
//
// The texts of PNG files, plain, compressed or international, and the metadata blocks that are
// hidden in them. ISO/IEC 15948, 11.3.4.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "io/byte_view.h"

namespace media::image {

// A keyword and its text, as the chunk's bytes say them: the keyword in Latin-1, the text in
// Latin-1 or, from an iTXt chunk, in UTF-8.
struct PngText {
  std::string keyword;
  std::string text;
};

// The payload of a tEXt, zTXt or iTXt chunk; none where it is damaged or decompresses to more than
// the budget, which is lessened by what it decompresses to.
std::optional<PngText> readPngText(io::ByteView payload, std::string_view chunkType,
                                   std::size_t& budget);

// A block that ImageMagick and others write as hexadecimal digits into a text: a line with its
// name, one with its length, the digits.
std::optional<std::vector<std::uint8_t>> decodeRawProfile(std::string_view text);

}  // namespace media::image
