// SPDX-License-Identifier: MIT
#include "desktop/uikit/text/utf16.h"

#include <gtest/gtest.h>

#include "bridge/uikit.h"

namespace desktop::uikit {
namespace {

TEST(Utf16, StringsComeBackAsTheyWere) {
  const AutoreleasePool pool;
  for (const std::u16string text : {u"", u"plain", u"\x5199\x771F", u"\U0001F4F7!"}) {
    EXPECT_EQ(utf16Of(stringOf(text)), text);
    EXPECT_EQ(stringOf(text).length(), text.size());
  }
  EXPECT_EQ(utf16Of(NSString()), u"");
}

TEST(Utf16, HalvesOfCharactersAreRead) {
  const AutoreleasePool pool;
  EXPECT_EQ(utf16Of(stringOf(u"\U0001F4F7").substringFrom(1)), u"\xDCF7");
}

TEST(Utf16, LoneSurrogatesAreReplaced) {
  const AutoreleasePool pool;
  EXPECT_EQ(withoutLoneSurrogates(u"a\xD800z\xDC00"), u"a\xFFFDz\xFFFD");
  EXPECT_EQ(withoutLoneSurrogates(u"\xD800\xD83D\xDCF7\xD800"), u"\xFFFD\xD83D\xDCF7\xFFFD");
  EXPECT_EQ(utf16Of(stringOf(u"a\xD800")), u"a\xFFFD");
}

TEST(Utf16, AnIndexNeverSplitsAPair) {
  const std::u16string text = u"a\xD83D\xDCF7z";
  constexpr std::size_t expected[] = {0, 1, 1, 3, 4, 5};
  for (std::size_t index = 0; index < std::size(expected); ++index)
    EXPECT_EQ(outsidePair(text, index), expected[index]) << index;
}

}  // namespace
}  // namespace desktop::uikit
