// SPDX-License-Identifier: MIT
#include "desktop/script/script_line.h"

#include <gtest/gtest.h>

namespace desktop::script {
namespace {

TEST(ScriptLine, WordsStandBetweenBlanksOrInQuotes) {
  struct Case {
    const char* line;
    std::vector<Word> words;
  };
  const Case cases[] = {
      {"", {}},
      {"   \t", {}},
      {"# a remark", {}},
      {"  # a remark", {}},
      {"tap 1 2\r", {{"tap"}, {"1"}, {"2"}}},
      {"tap \"Select All\"", {{"tap"}, {"Select All", true}}},
      {"tap \" Deselect\"", {{"tap"}, {" Deselect", true}}},
      {"expect \"\"", {{"expect"}, {"", true}}},
      {R"(expect "a \"b\" \\ c\nd")", {{"expect"}, {"a \"b\" \\ c\nd", true}}},
      {"a #b", {{"a"}, {"#b"}}},
      {"a\"b c\"", {{"a\"b"}, {"c\""}}},
  };
  for (const Case& item : cases) {
    const auto words = wordsOf(item.line);
    ASSERT_TRUE(words) << item.line;
    EXPECT_EQ(*words, item.words) << item.line;
  }
}

TEST(ScriptLine, AQuotationMarkThatIsMissingIsAnError) {
  for (const char* line : {"\"", "tap \"abc", "tap \"abc\\\""}) EXPECT_FALSE(wordsOf(line)) << line;
}

TEST(ScriptLine, NumbersAreTheWholeWord) {
  EXPECT_EQ(*numberOf({"12.5"}), 12.5);
  EXPECT_EQ(*numberOf({"-3"}), -3);
  for (const char* text : {"", "x", "1x", "nan", "inf", "1e999", "0x10"})
    EXPECT_FALSE(numberOf({text})) << text;
}

}  // namespace
}  // namespace desktop::script
