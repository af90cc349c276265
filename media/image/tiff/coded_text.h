// SPDX-License-Identifier: MIT
//
// Texts that name their own encoding: UserComment and two GPS fields. EXIF 2.31, 4.6.5, table 9.
#pragma once

#include <optional>
#include <string>

#include "io/byte_view.h"

namespace media::image {

// The text behind the eight bytes that name its encoding (ASCII, UNICODE, or zeros for an unknown
// one, read as UTF-8 or Latin-1), without trailing blanks; bytes that name none but are plain text
// count whole, as some cameras write them. UTF-16 has its byte order from a mark, else from where
// its zero bytes lie, else `order`. None for an empty text, JIS and bytes that are no text.
std::optional<std::string> decodeCodedText(io::ByteView bytes, io::ByteOrder order);

}  // namespace media::image
