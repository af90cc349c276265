// SPDX-License-Identifier: MIT
#include "apps/lumifact/command_line/wrapped_text.h"

#include <gtest/gtest.h>

namespace lumifact::tool {
namespace {

std::string wrapped(std::string_view text, std::size_t indent = 0) {
  std::string into;
  appendWrapped(into, text, indent);
  return into;
}

TEST(WrappedText, BreaksBetweenTheWordsThatPassTheWidth) {
  const std::string ten = "123456789 ";
  const std::string full = ten + ten + ten + ten + ten + ten + ten + "1234567890";
  EXPECT_EQ(wrapped(""), "\n");
  EXPECT_EQ(wrapped(full), full + "\n");
  EXPECT_EQ(wrapped(full + " x"), full + "\nx\n");
  EXPECT_EQ(wrapped(full + "1 x"), full.substr(0, 69) + "\n12345678901 x\n");
}

TEST(WrappedText, IndentsEveryLineButTheFirst) {
  const std::string word(30, 'x');
  EXPECT_EQ(wrapped(word + " " + word + " y", 20),
            word + "\n" + std::string(20, ' ') + word + " y\n");
  EXPECT_EQ(wrapped("a\nb\n\nc", 2), "a\n  b\n\n  c\n");
}

TEST(WrappedText, KeepsAWordThatIsTooLongWhole) {
  const std::string word(100, 'x');
  EXPECT_EQ(wrapped("a " + word + " b"), "a\n" + word + "\nb\n");
  EXPECT_EQ(wrapped(word, 10), word + "\n");
}

}  // namespace
}  // namespace lumifact::tool
