// SPDX-License-Identifier: MIT
#include "model/utf8.h"

#include <algorithm>
#include <cstring>

namespace model {

namespace {

constexpr CodePoint invalidByte = {0xFFFD, 1, false};

bool isContinuation(unsigned char byte) {
  return (byte & 0xC0) == 0x80;
}

// A byte's place among the bytes at which two texts first differ. Supplementary characters (lead
// bytes F0 and up) are surrogate pairs in UTF-16, which come before U+E000-U+FFFF (lead bytes EE
// and EF): those two are moved behind.
int rankOf(char character) {
  const auto byte = static_cast<unsigned char>(character);
  return byte == 0xEE || byte == 0xEF ? byte + 0x10 : byte;
}

bool isSurrogate(char32_t codePoint) {
  return codePoint >= 0xD800 && codePoint <= 0xDFFF;
}

// Eight bytes of a text at once. REQUIRES: the text has them.
std::uint64_t word(std::string_view text, std::size_t offset) {
  std::uint64_t bytes = 0;
  std::memcpy(&bytes, text.data() + offset, sizeof(bytes));
  return bytes;
}

}  // namespace

CodePoint codePointAt(std::string_view text, std::size_t offset) {
  const auto first = static_cast<unsigned char>(text[offset]);
  if (first < 0x80) return {first, 1, true};
  const std::uint8_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  if (first < 0xC2 || first > 0xF4 || text.size() - offset < length) return invalidByte;
  char32_t value = first & (0xFF >> (length + 1));
  for (const char next : text.substr(offset + 1, length - 1)) {
    const auto byte = static_cast<unsigned char>(next);
    if (!isContinuation(byte)) return invalidByte;
    value = (value << 6) | (byte & 0x3F);
  }
  constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
  if (value < smallest[length] || value > 0x10FFFF || isSurrogate(value)) return invalidByte;
  return {value, length, true};
}

void appendUtf8(std::string& text, char32_t codePoint) {
  if (codePoint > 0x10FFFF || isSurrogate(codePoint)) codePoint = 0xFFFD;
  const auto append = [&](char32_t bits) { text.push_back(static_cast<char>(bits)); };
  if (codePoint < 0x80) {
    append(codePoint);
  } else if (codePoint < 0x800) {
    append(0xC0 | (codePoint >> 6));
    append(0x80 | (codePoint & 0x3F));
  } else if (codePoint < 0x10000) {
    append(0xE0 | (codePoint >> 12));
    append(0x80 | ((codePoint >> 6) & 0x3F));
    append(0x80 | (codePoint & 0x3F));
  } else {
    append(0xF0 | (codePoint >> 18));
    append(0x80 | ((codePoint >> 12) & 0x3F));
    append(0x80 | ((codePoint >> 6) & 0x3F));
    append(0x80 | (codePoint & 0x3F));
  }
}

bool isValidUtf8(std::string_view text) {
  for (std::size_t offset = 0; offset < text.size();) {
    const CodePoint next = codePointAt(text, offset);
    if (!next.valid) return false;
    offset += next.bytes;
  }
  return true;
}

std::string replacingInvalidUtf8(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t offset = 0; offset < text.size();) {
    const CodePoint next = codePointAt(text, offset);
    appendUtf8(result, next.value);
    offset += next.bytes;
  }
  return result;
}

std::string utf8OrLatin1(std::string_view bytes) {
  return isValidUtf8(bytes) ? std::string(bytes) : latin1ToUtf8(bytes);
}

std::string latin1ToUtf8(std::string_view bytes) {
  std::string result;
  result.reserve(bytes.size());
  for (const char byte : bytes) appendUtf8(result, static_cast<unsigned char>(byte));
  return result;
}

std::string utf16ToUtf8(std::u16string_view text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t index = 0; index < text.size(); ++index) {
    const char32_t unit = text[index];
    const bool leads = unit >= 0xD800 && unit <= 0xDBFF && index + 1 < text.size() &&
                       text[index + 1] >= 0xDC00 && text[index + 1] <= 0xDFFF;
    if (leads) {
      appendUtf8(result, 0x10000 + ((unit - 0xD800) << 10) + (text[index + 1] - 0xDC00u));
      ++index;
    } else {
      appendUtf8(result, unit);
    }
  }
  return result;
}

bool isAscii(std::string_view text) {
  std::uint64_t bits = 0;
  std::size_t offset = 0;
  for (; offset + sizeof(bits) <= text.size(); offset += sizeof(bits)) bits |= word(text, offset);
  for (; offset < text.size(); ++offset) bits |= static_cast<unsigned char>(text[offset]);
  return (bits & 0x8080'8080'8080'8080) == 0;
}

std::size_t commonPrefix(std::string_view left, std::string_view right) {
  constexpr std::size_t step = 8;  // bytes, compared at once
  const char* const begin = left.data();
  const char* const end = begin + std::min(left.size(), right.size());
  const char* at = begin;
  const char* other = right.data();
  for (; end - at >= std::ptrdiff_t{step} && std::memcmp(at, other, step) == 0; at += step)
    other += step;
  while (at != end && *at == *other) ++at, ++other;
  return static_cast<std::size_t>(at - begin);
}

bool LiteralLess::operator()(std::string_view left, std::string_view right) const {
  const std::size_t offset = commonPrefix(left, right);
  if (offset == right.size()) return false;
  return offset == left.size() || rankOf(left[offset]) < rankOf(right[offset]);
}

}  // namespace model
