// SPDX-License-Identifier: MIT
#include "media/image/png/png_text.h"

#include "media/image/blocks/inflate.h"

namespace media::image {

namespace {

// Takes the text up to the next NUL off the front, and the NUL; none where there is no NUL.
std::optional<std::string_view> takeTerminated(io::ByteView& rest) {
  const std::string_view text = rest.text();
  const std::size_t end = text.find('\0');
  if (end == std::string_view::npos) return std::nullopt;
  rest = rest.from(end + 1);
  return text.substr(0, end);
}

std::optional<std::string> inflateText(io::ByteView stream, std::size_t& budget) {
  const auto bytes = inflateBytes(stream, budget);
  if (!bytes) return std::nullopt;
  return std::string(bytes->begin(), bytes->end());
}

constexpr std::uint8_t deflateMethod = 0;

// Behind the keyword of an iTXt chunk: a flag and a method of compression, a language, a
// translated keyword, the text.
std::optional<std::string> internationalText(io::ByteView rest, std::size_t& budget) {
  const auto isCompressed = rest.u8(0);
  const auto method = rest.u8(1);
  if (!method) return std::nullopt;
  rest = rest.from(2);
  if (!takeTerminated(rest) || !takeTerminated(rest)) return std::nullopt;
  if (isCompressed == 0) return std::string(rest.text());
  return method == deflateMethod ? inflateText(rest, budget) : std::nullopt;
}

std::optional<std::string> textBehindKeyword(io::ByteView rest, std::string_view chunkType,
                                             std::size_t& budget) {
  if (chunkType == "tEXt") return std::string(rest.text());
  if (chunkType == "iTXt") return internationalText(rest, budget);
  return rest.u8(0) == deflateMethod ? inflateText(rest.from(1), budget) : std::nullopt;
}

int hexDigit(char character) {
  if (character >= '0' && character <= '9') return character - '0';
  if (character >= 'a' && character <= 'f') return character - 'a' + 10;
  if (character >= 'A' && character <= 'F') return character - 'A' + 10;
  return -1;
}

bool isBlank(char character) {
  return character == ' ' || character == '\n' || character == '\r' || character == '\t';
}

// Behind the blank lines, the name and the length.
std::string_view hexDigitsOf(std::string_view text) {
  for (int lines = 0; lines < 2; ++lines) {
    const std::size_t start = text.find_first_not_of(" \n\r\t");
    if (start == std::string_view::npos) return {};
    const std::size_t end = text.find('\n', start);
    if (end == std::string_view::npos) return {};
    text.remove_prefix(end);
  }
  return text;
}

}  // namespace

std::optional<PngText> readPngText(io::ByteView payload, std::string_view chunkType,
                                   std::size_t& budget) {
  const auto keyword = takeTerminated(payload);
  if (!keyword || keyword->empty() || keyword->size() > 79) return std::nullopt;
  auto text = textBehindKeyword(payload, chunkType, budget);
  if (!text) return std::nullopt;
  return PngText{std::string(*keyword), *std::move(text)};
}

std::optional<std::vector<std::uint8_t>> decodeRawProfile(std::string_view text) {
  std::vector<std::uint8_t> bytes;
  int pending = -1;
  for (const char character : hexDigitsOf(text)) {
    if (isBlank(character)) continue;
    const int digit = hexDigit(character);
    if (digit < 0) break;
    if (pending < 0) {
      pending = digit;
      continue;
    }
    bytes.push_back(static_cast<std::uint8_t>(pending << 4 | digit));
    pending = -1;
  }
  if (bytes.empty()) return std::nullopt;
  return bytes;
}

}  // namespace media::image
