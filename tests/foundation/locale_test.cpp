// SPDX-License-Identifier: MIT
#include "foundation/locale.h"

#include <gtest/gtest.h>

#include "tests/foundation/environment.h"

namespace foundation {
namespace {

TEST(LocaleTest, namesAreReducedToLanguageScriptAndRegion) {
  const struct {
    std::string_view name;
    std::string_view expected;
  } cases[] = {
      {"de_DE.UTF-8@euro", "de_DE"},
      {"de_DE.UTF-8", "de_DE"},
      {"de", "de"},
      {"de-ch", "de_CH"},
      {"EN_gb", "en_GB"},
      {"es_419", "es_419"},
      {"zh_Hant_TW", "zh_Hant_TW"},
      {"sr-latn-rs", "sr_Latn_RS"},
      {"fil_PH", "fil_PH"},
      {"ca_ES@valencia", "ca_ES"},
      {"en_US", "en_US"},
      {"en_US_POSIX", "en_US"},
      {"sr@latin", "sr"},
      // No locale's.
      {"", "en_US"},
      {"C", "en_US"},
      {"POSIX", "en_US"},
      {"C.UTF-8", "en_US"},
      {"../../etc/passwd", "en_US"},
      {"klingon", "en_US"},
      {"_DE", "en_US"},
  };
  for (const auto& row : cases) EXPECT_EQ(Locale(row.name).name(), row.expected) << row.name;
}

TEST(LocaleTest, aNameIsALanguageAndWhatNarrowsIt) {
  for (const char* name :
       {"de", "de_DE", "de-ch", "zh_Hant_TW", "es_419", "fil_PH", "sr@latin", "de_DE.UTF-8@euro",
        "en_US_POSIX", "ca_ES_valencia", "de_DE_1996", "sl_rozaj_biske", "C", "POSIX", "C.UTF-8"})
    EXPECT_TRUE(Locale::isName(name)) << name;
  for (const char* name :
       {"", "d", "klingon", "_DE", "de_", "de-", "de__DE", "de_DE_", "d3", "de_D", "de_DEU_DE",
        "../../etc/passwd", "de/../../x", "de DE", ".UTF-8", "@euro", "d\u00e9", "de_DE_a\nb"})
    EXPECT_FALSE(Locale::isName(name)) << name;
}

TEST(LocaleTest, onlyAmericanEnglishNeedsNoData) {
  EXPECT_TRUE(Locale().isEnUS());
  EXPECT_TRUE(Locale("en_US.UTF-8").isEnUS());
  EXPECT_FALSE(Locale("en_GB").isEnUS());
  EXPECT_FALSE(Locale("en").isEnUS());
}

TEST(LocaleTest, theUsersIsTakenFromTheFirstVariableThatIsSet) {
  const ScopedVariable all("LC_ALL", std::nullopt);
  const ScopedVariable time("LC_TIME", "de_DE.UTF-8");
  const ScopedVariable language("LANG", "fr_FR.UTF-8");
  EXPECT_EQ(Locale::ofUser("LC_TIME").name(), "de_DE");
  EXPECT_EQ(Locale::ofUser("LC_NO_SUCH").name(), "fr_FR");
  {
    const ScopedVariable posix("LC_ALL", "C");
    EXPECT_TRUE(Locale::ofUser("LC_TIME").isEnUS());
  }
  const ScopedVariable empty("LC_TIME", "");
  EXPECT_EQ(Locale::ofUser("LC_TIME").name(), "fr_FR");
  const ScopedVariable none("LANG", std::nullopt);
  EXPECT_TRUE(Locale::ofUser("LC_TIME").isEnUS());
}

}  // namespace
}  // namespace foundation
