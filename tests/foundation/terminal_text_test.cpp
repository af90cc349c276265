// SPDX-License-Identifier: MIT
#include "foundation/terminal_text.h"

#include <gtest/gtest.h>

#include "model/utf8.h"

namespace foundation {
namespace {

struct Case {
  std::string_view text;
  std::string_view name;  // what is left of it in a name
  std::string_view body;  // and in the body of a report
};

constexpr Case cases[] = {
    {"", "", ""},
    {"IMG_0001.JPG", "IMG_0001.JPG", "IMG_0001.JPG"},
    {"Zürich 東京", "Zürich 東京", "Zürich 東京"},
    {"a\nb\tc", "a\\u000ab\\u0009c", "a\nb\tc"},
    {"\x1b[31mred", "\\u001b[31mred", "\\u001b[31mred"},
    {"bell\x07 return\r delete\x7f", "bell\\u0007 return\\u000d delete\\u007f",
     "bell\\u0007 return\\u000d delete\\u007f"},
    {"\xc2\x9b"
     "31m",
     "\\u009b31m", "\\u009b31m"},
    {"\xe2\x80\xaegnp.exe", "\\u202egnp.exe", "\\u202egnp.exe"},
    {"\xe2\x81\xa6x\xe2\x81\xa9", "\\u2066x\\u2069", "\\u2066x\\u2069"},
    {"\x9b"
     "31m \xff",
     "\\x9b31m \\xff", "\\x9b31m \\xff"},
};

TEST(TerminalText, WritesOutWhatATerminalCouldObey) {
  for (const Case& item : cases) {
    EXPECT_EQ(terminalSafe(item.text, Keep::nothing), item.name) << item.name;
    EXPECT_EQ(terminalSafe(item.text, Keep::lineBreaks), item.body) << item.name;
  }
}

TEST(TerminalText, KeepsTheMarksThatOrdinaryRightToLeftTextUses) {
  const std::string text = "\xe2\x80\x8f\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d";  // U+200F and a word
  EXPECT_EQ(terminalSafe(text, Keep::nothing), text);
}

TEST(TerminalText, IsValidUtf8WhateverTheBytes) {
  std::string bytes;
  for (int first = 0; first < 256; ++first) {
    for (int second = 0; second < 256; second += 5) {
      bytes += static_cast<char>(first);
      bytes += static_cast<char>(second);
    }
  }
  EXPECT_TRUE(model::isValidUtf8(terminalSafe(bytes, Keep::nothing)));
}

}  // namespace
}  // namespace foundation
