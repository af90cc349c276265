// SPDX-License-Identifier: MIT
#include "desktop/uikit/text/text_words.h"

#include <gtest/gtest.h>

#include <string>

namespace desktop::uikit {
namespace {

struct Case {
  std::u16string_view text;
  std::size_t index;
  std::u16string_view word;
};

TEST(TextWords, AreFoundAroundAUnit) {
  constexpr Case cases[] = {
      {u"some words here", 6, u"words"},
      {u"some words here", 0, u"some"},
      {u"some words here", 14, u"here"},
      {u"some words here", 1000, u"here"},
      {u"some words here", 4, u" "},
      {u"f/2.8, ISO 400", 3, u"2.8"},
      {u"1,234.5 mm", 1, u"1,234.5"},
      {u"end. Next", 3, u"."},
      {u"it's", 1, u"it's"},
      {u"IMG_0001.JPG", 2, u"IMG_0001"},
      {u"IMG_0001.JPG", 10, u"JPG"},
      {u"Gr\u00F6\u00DFe: 3", 1, u"Gr\u00F6\u00DFe"},
      {u"a\u2014b", 1, u"\u2014"},
      {u"\u05E9\u05DC\u05D5\u05DD \u05E2\u05D5\u05DC\u05DD", 1, u"\u05E9\u05DC\u05D5\u05DD"},
      {u"\n", 0, u"\n"},
  };
  for (const Case& each : cases) {
    const NSRange word = wordAt(each.text, each.index);
    EXPECT_EQ(std::u16string(each.text.substr(word.location, word.length)),
              std::u16string(each.word))
        << each.index;
  }
}

TEST(TextWords, AnEmptyTextHasNone) {
  EXPECT_EQ(wordAt(u"", 0), NSRange{});
  EXPECT_EQ(wordAt(u"", 5), NSRange{});
}

TEST(TextWords, NeverSplitACharacter) {
  constexpr std::u16string_view text = u" \U0001F4F7 ";
  EXPECT_EQ(wordAt(text, 1), (NSRange{1, 2}));
  EXPECT_EQ(wordAt(text, 2), (NSRange{1, 2}));
}

}  // namespace
}  // namespace desktop::uikit
