// SPDX-License-Identifier: MIT
#include "media/image/tiff/coded_text.h"

#include <gtest/gtest.h>

#include <string_view>

namespace media::image {
namespace {

using namespace std::string_view_literals;

struct CodedCase {
  const char* name;
  std::string_view bytes;
  std::optional<std::string> text;
};

io::ByteView viewOf(std::string_view text) {
  return std::span(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
}

TEST(CodedText, isReadByTheEncodingItNames) {
  const CodedCase cases[] = {
      {"ASCII", "ASCII\0\0\0hello"sv, "hello"},
      {"trailing blanks and NULs", "ASCII\0\0\0hello  \0\0"sv, "hello"},
      {"leading blanks stay", "ASCII\0\0\0  hello"sv, "  hello"},
      {"Latin-1 under ASCII", "ASCII\0\0\0caf\xE9"sv, "café"},
      {"unknown encoding", "\0\0\0\0\0\0\0\0caf\xC3\xA9"sv, "café"},
      {"big-endian", "UNICODE\0\0h\0\xE9"sv, "hé"},
      {"little-endian", "UNICODE\0h\0\xE9\0"sv, "hé"},
      {"big-endian mark", "UNICODE\0\xFE\xFF\x65\xE5\x67\x2C"sv, "日本"},
      {"little-endian mark", "UNICODE\0\xFF\xFE\xE5\x65\x2C\x67"sv, "日本"},
      {"the structure's order without zero bytes", "UNICODE\0\x65\xE5\x67\x2C"sv, "日本"},
      {"a surrogate pair", "UNICODE\0\xD8\x3D\xDE\x00\0!"sv, "😀!"},
      {"an odd byte at the end", "UNICODE\0\0h\0"sv, "h"},
      {"no code at all", "plain words"sv, "plain words"},
      {"Japanese code", "JIS\0\0\0\0\0text"sv, std::nullopt},
      {"blanks only", "ASCII\0\0\0     "sv, std::nullopt},
      {"zeros only", "\0\0\0\0\0\0\0\0\0\0\0\0"sv, std::nullopt},
      {"code alone", "UNICODE\0"sv, std::nullopt},
      {"no text", "\1\2\3\4binary"sv, std::nullopt},
      {"empty", ""sv, std::nullopt},
      {"short", "\0\0"sv, std::nullopt},
  };
  for (const CodedCase& one : cases) {
    EXPECT_EQ(decodeCodedText(viewOf(one.bytes), io::ByteOrder::big), one.text) << one.name;
  }
}

TEST(CodedText, theStructuresByteOrderDecidesWhereNothingElseDoes) {
  EXPECT_EQ(decodeCodedText(viewOf("UNICODE\0\xE5\x65\x2C\x67"sv), io::ByteOrder::little), "日本");
}

}  // namespace
}  // namespace media::image
