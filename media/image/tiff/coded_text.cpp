// SPDX-License-Identifier: MIT
#include "media/image/tiff/coded_text.h"

#include <algorithm>
#include <string_view>

#include "model/utf8.h"

namespace media::image {

namespace {

using namespace std::string_view_literals;

constexpr std::size_t codeSize = 8;

io::ByteOrder guessedOrder(io::ByteView units, io::ByteOrder fallback) {
  int highZeros = 0;
  int lowZeros = 0;
  for (std::size_t index = 0; index + 1 < units.size(); index += 2) {
    highZeros += units.bytes()[index] == 0 ? 1 : 0;
    lowZeros += units.bytes()[index + 1] == 0 ? 1 : 0;
  }
  if (highZeros == lowZeros) return fallback;
  return highZeros > lowZeros ? io::ByteOrder::big : io::ByteOrder::little;
}

std::string decodeUtf16(io::ByteView units, io::ByteOrder fallback) {
  io::ByteOrder order = guessedOrder(units, fallback);
  if (units.startsWith("\xFE\xFF") || units.startsWith("\xFF\xFE")) {
    order = units.startsWith("\xFE\xFF") ? io::ByteOrder::big : io::ByteOrder::little;
    units = units.from(2);
  }
  std::u16string text;
  for (std::size_t index = 0; index + 1 < units.size(); index += 2) {
    const char16_t unit = units.u16(index, order).value_or(0);
    if (unit == 0) break;
    text.push_back(unit);
  }
  return model::utf16ToUtf8(text);
}

std::string decodeBytes(std::string_view text) {
  return model::utf8OrLatin1(text.substr(0, text.find('\0')));
}

bool isPlainText(std::string_view text) {
  const auto isControl = [](char byte) {
    return static_cast<unsigned char>(byte) < 0x20 &&
           "\t\n\r\0"sv.find(byte) == std::string_view::npos;
  };
  return !text.starts_with('\0') && std::ranges::none_of(text, isControl) &&
         model::isValidUtf8(text);
}

std::string decode(io::ByteView bytes, io::ByteOrder order) {
  const std::string_view text = bytes.text();
  const std::string_view code = text.substr(0, codeSize);
  const io::ByteView rest = bytes.from(codeSize);
  if (code == "UNICODE\0"sv) return decodeUtf16(rest, order);
  if (code == "ASCII\0\0\0"sv || code == "\0\0\0\0\0\0\0\0"sv) return decodeBytes(rest.text());
  if (code.starts_with("JIS\0"sv) || !isPlainText(text)) return {};
  return decodeBytes(text);
}

}  // namespace

std::optional<std::string> decodeCodedText(io::ByteView bytes, io::ByteOrder order) {
  std::string text = decode(bytes, order);
  text.erase(text.find_last_not_of(' ') + 1);
  return text.empty() ? std::nullopt : std::optional(std::move(text));
}

}  // namespace media::image
