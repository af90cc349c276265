// SPDX-License-Identifier: MIT
//
// UTF-8: the literal order of keys, and text of other encodings made valid.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace model {

// A code point read from the front of a text, and how many bytes it took.
struct CodePoint {
  char32_t value;      // U+FFFD where the bytes are no valid sequence
  std::uint8_t bytes;  // at least 1
  bool valid;
};

// Reads the code point at `offset`. Overlong forms, surrogates and values beyond U+10FFFF are
// invalid and take one byte. REQUIRES: offset < text.size().
CodePoint codePointAt(std::string_view text, std::size_t offset);

// Appends the code point as UTF-8; surrogates and values beyond U+10FFFF become U+FFFD.
void appendUtf8(std::string& text, char32_t codePoint);

// Whether the whole text is valid UTF-8.
bool isValidUtf8(std::string_view text);

// The text with every invalid byte replaced by U+FFFD.
std::string replacingInvalidUtf8(std::string_view text);

// Bytes read as UTF-8 where they are valid UTF-8, else each byte as Latin-1: how old cameras and
// editors wrote text. The result is valid UTF-8.
std::string utf8OrLatin1(std::string_view bytes);

// Each byte as the Latin-1 character of its number.
std::string latin1ToUtf8(std::string_view bytes);

// UTF-16 code units as UTF-8; unpaired surrogates become U+FFFD.
std::string utf16ToUtf8(std::u16string_view text);

// Whether all bytes are below 128.
bool isAscii(std::string_view text);

// How many bytes the two texts begin with in common.
std::size_t commonPrefix(std::string_view left, std::string_view right);

// Orders keys by their UTF-16 code units, as the platform's literal comparison does. It differs
// from byte order only between U+E000-U+FFFF and the supplementary planes.
struct LiteralLess {
  using is_transparent = void;
  bool operator()(std::string_view left, std::string_view right) const;
};

}  // namespace model
