// SPDX-License-Identifier: MIT
#include "apps/lumifact/files/line_reader.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <vector>

#include "tests/support/temporary_folder.h"

namespace lumifact::tool {
namespace {

using support::TemporaryFolder;

// The lines of a text; one that is too long has "..." behind what is kept of it.
std::vector<std::string> linesOf(std::string_view text, LineReader::Limits limits) {
  const TemporaryFolder folder;
  const int descriptor = ::open(folder.write("list", text).c_str(), O_RDONLY);
  LineReader reader(descriptor, limits);
  std::vector<std::string> lines;
  while (const auto line = reader.next()) {
    lines.push_back(std::string(line->text) + (line->isTooLong ? "..." : ""));
  }
  EXPECT_FALSE(reader.failure());
  ::close(descriptor);
  return lines;
}

TEST(LineReader, GivesLinesWithAndWithoutALastLineBreak) {
  const LineReader::Limits limits{.separator = '\n', .longestLine = 100};
  using Lines = std::vector<std::string>;
  EXPECT_EQ(linesOf("", limits), Lines{});
  EXPECT_EQ(linesOf("\n", limits), Lines{""});
  EXPECT_EQ(linesOf("a\nb", limits), (Lines{"a", "b"}));
  EXPECT_EQ(linesOf("a\n\nb\r\n", limits), (Lines{"a", "", "b\r"}));
}

TEST(LineReader, SeparatesByZeroBytes) {
  const std::string_view text("a\nb\0c\0", 6);
  EXPECT_EQ(linesOf(text, {.separator = '\0', .longestLine = 100}),
            (std::vector<std::string>{"a\nb", "c"}));
}

TEST(LineReader, CutsLinesThatAreTooLong) {
  const LineReader::Limits limits{.separator = '\n', .longestLine = 5};
  EXPECT_EQ(linesOf("12345\n123456\nx", limits),
            (std::vector<std::string>{"12345", "12345...", "x"}));
  const std::string longLine(1'000'000, 'a');
  EXPECT_EQ(linesOf(longLine + "\nb\n" + longLine, limits),
            (std::vector<std::string>{"aaaaa...", "b", "aaaaa..."}));
}

TEST(LineReader, GivesLinesAcrossReads) {
  std::string text;
  std::vector<std::string> lines;
  for (int number = 0; number < 50'000; ++number) {
    lines.push_back("line " + std::to_string(number));
    text += lines.back() + "\n";
  }
  EXPECT_EQ(linesOf(text, {.separator = '\n', .longestLine = 100}), lines);
}

TEST(LineReader, TellsWhyAReadFailed) {
  const int descriptor = ::open("/", O_RDONLY);
  LineReader reader(descriptor, {.separator = '\n', .longestLine = 5});
  EXPECT_FALSE(reader.next());
  ASSERT_TRUE(reader.failure());
  EXPECT_EQ(reader.failure()->reason, "Is a directory");
  ::close(descriptor);
}

}  // namespace
}  // namespace lumifact::tool
