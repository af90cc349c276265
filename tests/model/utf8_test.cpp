// SPDX-License-Identifier: MIT
#include "model/utf8.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace model {
namespace {

TEST(Utf8, RoundTripsEveryCodePoint) {
  for (char32_t codePoint = 0; codePoint <= 0x10FFFF; ++codePoint) {
    if (codePoint >= 0xD800 && codePoint <= 0xDFFF) continue;
    std::string text;
    appendUtf8(text, codePoint);
    const CodePoint read = codePointAt(text, 0);
    ASSERT_TRUE(read.valid && read.value == codePoint && read.bytes == text.size())
        << static_cast<std::uint32_t>(codePoint);
  }
}

TEST(Utf8, AppendsTheReplacementForWhatIsNoCharacter) {
  for (const char32_t codePoint : {0xD800, 0xDFFF, 0x110000, 0x7FFFFFFF}) {
    std::string text;
    appendUtf8(text, codePoint);
    EXPECT_EQ(text, "\uFFFD");
  }
}

TEST(Utf8, RefusesWhatIsInvalid) {
  const char* const texts[] = {
      "\x80",  // a continuation byte alone
      "\xBF",
      "\xC0\x80",  // overlong
      "\xC1\xBF",
      "\xE0\x80\x80",
      "\xE0\x9F\xBF",
      "\xF0\x80\x80\x80",
      "\xF0\x8F\xBF\xBF",
      "\xED\xA0\x80",  // surrogates
      "\xED\xBF\xBF",
      "\xF4\x90\x80\x80",  // beyond U+10FFFF
      "\xF5\x80\x80\x80",
      "\xFE",
      "\xFF",
      "\xC3",  // cut short
      "\xE2\x82",
      "\xF0\x9F\x93",
      "\xC3(",  // no continuation
      "\xE2\x82(",
      "\xF0\x9F\x93(",
  };
  for (const char* text : texts) {
    EXPECT_FALSE(isValidUtf8(text)) << ::testing::PrintToString(text);
    const CodePoint read = codePointAt(text, 0);
    EXPECT_FALSE(read.valid);
    EXPECT_EQ(read.value, 0xFFFDU);
    EXPECT_EQ(read.bytes, 1);
  }
}

TEST(Utf8, NeverReadsBehindAView) {
  const std::string_view whole = "\xF0\x9F\x93\xB7";
  for (std::size_t length = 1; length < whole.size(); ++length) {
    EXPECT_FALSE(codePointAt(whole.substr(0, length), 0).valid) << length;
  }
  EXPECT_EQ(codePointAt(whole, 0).value, 0x1F4F7U);
}

TEST(Utf8, AcceptsWhatIsValid) {
  for (const char* text : {"", "ascii", "é", "\uFFFF", "\U0010FFFF", "90° \U0001F4F7"}) {
    EXPECT_TRUE(isValidUtf8(text)) << text;
    EXPECT_EQ(replacingInvalidUtf8(text), text);
    EXPECT_EQ(utf8OrLatin1(text), text);
  }
  EXPECT_TRUE(isValidUtf8(std::string_view("a\0b", 3)));
}

TEST(Utf8, ReplacesEachInvalidByte) {
  EXPECT_EQ(replacingInvalidUtf8("a\xFF"
                                 "b"),
            "a\uFFFDb");
  EXPECT_EQ(replacingInvalidUtf8("\xE2\x82"), "\uFFFD\uFFFD");
  EXPECT_EQ(replacingInvalidUtf8("\xED\xA0\x80"), "\uFFFD\uFFFD\uFFFD");
  EXPECT_EQ(replacingInvalidUtf8("\xC3\xC3\xA9"), "\uFFFDé");
}

TEST(Utf8, ReadsOtherBytesAsLatin1) {
  EXPECT_EQ(utf8OrLatin1("caf\xE9"), "café");
  EXPECT_EQ(utf8OrLatin1("caf\xC3\xA9"), "café");
  EXPECT_EQ(latin1ToUtf8("caf\xC3\xA9"), "cafÃ©");
  EXPECT_EQ(latin1ToUtf8(std::string_view("\0\x80\xFF", 3)), std::string("\0\u0080\u00FF", 5));
}

TEST(Utf8, ReadsUtf16) {
  struct Row {
    std::u16string units;
    const char* text;
  };
  const Row rows[] = {
      {u"", ""},
      {u"aé€", "aé€"},
      {{0xD83D, 0xDCF7}, "\U0001F4F7"},
      {{0xDBFF, 0xDFFF}, "\U0010FFFF"},
      {{0xD83D}, "\uFFFD"},
      {{0xDCF7}, "\uFFFD"},
      {{0xD83D, u'a'}, "\uFFFDa"},
      {{0xD83D, 0xD83D, 0xDCF7}, "\uFFFD\U0001F4F7"},
      {{0xDCF7, 0xD83D}, "\uFFFD\uFFFD"},
  };
  for (const Row& row : rows) EXPECT_EQ(utf16ToUtf8(row.units), row.text);
}

std::u16string unitsOf(const std::vector<char32_t>& text) {
  std::u16string units;
  for (const char32_t codePoint : text) {
    if (codePoint < 0x10000) {
      units += static_cast<char16_t>(codePoint);
    } else {
      units += static_cast<char16_t>(0xD800 + ((codePoint - 0x10000) >> 10));
      units += static_cast<char16_t>(0xDC00 + ((codePoint - 0x10000) & 0x3FF));
    }
  }
  return units;
}

TEST(Utf8, LiteralOrderIsThatOfUtf16Units) {
  constexpr char32_t candidates[] = {0,       'A',     'a',     0x7F,    0x80,     0x7FF,   0x800,
                                     0xD7FF,  0xE000,  0xEFFF,  0xF000,  0xFFFD,   0xFFFF,  0x10000,
                                     0x3FFFF, 0x40000, 0x1F4F7, 0xFFFFF, 0x100000, 0x10FFFF};
  std::mt19937 random(16);
  const auto anyText = [&] {
    std::vector<char32_t> text(random() % 4);
    for (char32_t& codePoint : text) codePoint = candidates[random() % std::size(candidates)];
    return text;
  };
  const auto utf8Of = [](const std::vector<char32_t>& text) {
    std::string bytes;
    for (const char32_t codePoint : text) appendUtf8(bytes, codePoint);
    return bytes;
  };
  const LiteralLess isLess;
  for (int round = 0; round < 200000; ++round) {
    const auto left = anyText();
    const auto right = anyText();
    ASSERT_EQ(isLess(utf8Of(left), utf8Of(right)), unitsOf(left) < unitsOf(right));
  }
}

TEST(Utf8, AsciiIsToldAtEveryPlace) {
  const std::string ascii(20, '\x7F');
  EXPECT_TRUE(isAscii(ascii));
  EXPECT_TRUE(isAscii(""));
  for (std::size_t index = 0; index < ascii.size(); ++index) {
    std::string text = ascii;
    text[index] = '\x80';
    EXPECT_FALSE(isAscii(text)) << index;
  }
}

TEST(Utf8, ACommonPrefixEndsAtTheFirstDifference) {
  const std::string text = "ABCDEFGHIJKLMNOPQRST";
  EXPECT_EQ(commonPrefix(text, text), text.size());
  EXPECT_EQ(commonPrefix(text, ""), 0U);
  for (std::size_t index = 0; index < text.size(); ++index) {
    std::string other = text;
    other[index] = 'x';
    EXPECT_EQ(commonPrefix(text, other), index);
    EXPECT_EQ(commonPrefix(text.substr(0, index), text), index);
  }
}

}  // namespace
}  // namespace model
