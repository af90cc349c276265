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
    {"a\u200eb\u200fc\u061cd", "a\\u200eb\\u200fc\\u061cd", "a\\u200eb\\u200fc\\u061cd"},
    {"a\u2028b\u2029c", "a\\u2028b\\u2029c", "a\\u2028b\\u2029c"},
    {"\u200b\u200c\u200d\u2060\ufeff", "\\u200b\\u200c\\u200d\\u2060\\ufeff",
     "\\u200b\\u200c\\u200d\\u2060\\ufeff"},
    {"\u180e\u206f\ufff9", "\\u180e\\u206f\\ufff9", "\\u180e\\u206f\\ufff9"},
    {"tag\U000e0041", "tag\\U000e0041", "tag\\U000e0041"},
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

TEST(TerminalText, KeepsWhatStandsBesideTheCharactersThatItWritesOut) {
  const std::string text =
      "\u00a0\u061b\u061d\u180d\u180f\u200a\u2010\u2027\u202f\u205f\u2070\ufefe\uffff\U000e0100";
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
