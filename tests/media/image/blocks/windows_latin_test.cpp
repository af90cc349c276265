// SPDX-License-Identifier: MIT
#include "media/image/blocks/windows_latin.h"

#include <gtest/gtest.h>

namespace media::image {
namespace {

TEST(WindowsLatin, bytesAreLetters) {
  struct Case {
    const char* bytes;
    const char* text;
  };
  const Case cases[] = {
      {"", ""},
      {"plain", "plain"},
      {"Zürich", "Zürich"},
      {"Z\xFCrich", "Zürich"},
      {"\x80 12", "€ 12"},
      {"\x93quoted\x94 \x96 d\x92Orsay\x85", "“quoted” – d’Orsay…"},
      {"\x8A\x8C\x8E\x9A\x9C\x9E\x9F", "ŠŒŽšœžŸ"},
      {"\xA0\xFF", "\u00A0ÿ"},
      {"\x81\x8D\x8F\x90\x9D", "\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"},
  };
  for (const Case& each : cases) EXPECT_EQ(utf8OrWindowsLatin(each.bytes), each.text);
}

}  // namespace
}  // namespace media::image
