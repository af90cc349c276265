// SPDX-License-Identifier: MIT
#include "desktop/uikit/text/visible_text.h"

#include <gtest/gtest.h>

namespace desktop::uikit {
namespace {

TEST(VisibleText, ShowsWhatTurnsTheWritingOrHides) {
  const struct {
    std::u16string_view text;
    std::u16string_view shown;
  } rows[] = {
      {u"", u""},
      {u"IMG_0001.JPG", u"IMG_0001.JPG"},
      {u"\u202Egpj.exe", u"\uFFFDgpj.exe"},
      {u"a\u2066b\u2069", u"a\uFFFDb\uFFFD"},
      {u"a\u200Eb\u200Fc\u061Cd", u"a\uFFFDb\uFFFDc\uFFFDd"},
      {u"a\u2028b\u2029c", u"a\uFFFDb\uFFFDc"},
      {u"a\u200Bb\u2060c\uFEFFd\u180Ee", u"a\uFFFDb\uFFFDc\uFFFDd\uFFFDe"},
      {u"a\u200Cb\u200Dc", u"a\uFFFDb\uFFFDc"},
      {u"\u202E\u05D0", u"\uFFFD\u05D0"},
      {std::u16string_view(u"a\xD800z", 3), u"a\uFFFDz"},
  };
  for (const auto& row : rows) EXPECT_EQ(visibleText(row.text), row.shown);
}

TEST(VisibleText, LeavesMarksAndJoinersWhereAScriptNeedsThem) {
  for (const std::u16string_view text :
       {u"\u05D0\u200F!", u"(\u200F\u05D0)", u"\u0645\u06CC\u200C\u062E\u0648\u0627\u0647\u0645",
        u"\U0001F468\u200D\U0001F469\u200D\U0001F467", u"\u0661\u061C/"})
    EXPECT_EQ(visibleText(text), text);
}

}  // namespace
}  // namespace desktop::uikit
