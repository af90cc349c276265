// SPDX-License-Identifier: MIT
#include "lumifact/report/four_char_text.h"

#include <gtest/gtest.h>

namespace lumifact {
namespace {

TEST(FourCharText, ReadsBytesFromTheMostSignificant) {
  struct Row {
    model::FourCharCode code;
    const char* text;
  };
  const Row rows[] = {
      {0x61766331, "avc1"},
      {0x61616320, "aac "},
      {0x68766331, "hvc1"},
      {0, ""},
      {0x61006263, "a"},
      {0x61620000, "ab"},
      {0x00616263, ""},
      {0xA978797A, "\u00A9xyz"},
      {0xFFFEFDFC, "\u00FF\u00FE\u00FD\u00FC"},
      {0x6D730011, "ms"},
  };
  for (const Row& row : rows) EXPECT_EQ(fourCharText(row.code), row.text) << row.code;
}

TEST(FourCharText, GivesBackEveryLiteral) {
  EXPECT_EQ(fourCharText(model::fourCharCode("lpcm")), "lpcm");
}

}  // namespace
}  // namespace lumifact
