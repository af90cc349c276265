// SPDX-License-Identifier: MIT
#include "desktop/uikit/text/text_direction.h"

#include <gtest/gtest.h>

namespace desktop::uikit {
namespace {

TEST(TextDirection, IsThatOfTheFirstLetter) {
  for (const char16_t* const text : {u"\u05D0", u"12. \u05D0 a", u"\u2022 \u0627", u"\uFEFB",
                                     u"\U0001F4F7 \u05D0", u"\U00010800", u"\U0001E900"})
    EXPECT_TRUE(isRightToLeft(text));
  for (const char16_t* const text :
       {u"", u"12", u"a \u05D0", u"\u00E9 \u05D0", u"\u5199 \u05D0", u"\U00020000 \u05D0"})
    EXPECT_FALSE(isRightToLeft(text));
}

TEST(TextDirection, AnyLetterCanRunToTheLeft) {
  EXPECT_TRUE(hasRightToLeft(u"a \u05D0"));
  EXPECT_FALSE(hasRightToLeft(u"a \u5199 \U0001F4F7"));
}

}  // namespace
}  // namespace desktop::uikit
