// SPDX-License-Identifier: MIT
#include "foundation/collation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unicode/coll.h>

#include <memory>
#include <random>
#include <string>
#include <thread>
#include <vector>

namespace foundation {
namespace {

int sign(int number) {
  return (number > 0) - (number < 0);
}

std::vector<std::string> sorted(std::vector<std::string> keys, std::string_view locale) {
  const model::KeyComparison compare = keyComparison(Locale(locale));
  std::ranges::stable_sort(keys, [&](const std::string& left, const std::string& right) {
    return compare(left, right) < 0;
  });
  return keys;
}

TEST(CollationTest, ordersTheSectionsAndKeysOfAPhoto) {
  EXPECT_THAT(sorted({"ProfileName", "{TIFF}", "Depth", "{ExifAux}", "DPIWidth", "{Exif}",
                      "ColorModel", "{GPS}", "DPIHeight", "{MakerApple}"},
                     "en_US"),
              testing::ElementsAre("{Exif}", "{ExifAux}", "{GPS}", "{MakerApple}", "{TIFF}",
                                   "ColorModel", "Depth", "DPIHeight", "DPIWidth", "ProfileName"));
  EXPECT_THAT(sorted({"FocalLenIn35mmFilm", "FNumber", "FlashPixVersion", "FocalLength", "Flash",
                      "FileSource"},
                     "en_US"),
              testing::ElementsAre("FileSource", "Flash", "FlashPixVersion", "FNumber",
                                   "FocalLength", "FocalLenIn35mmFilm"));
  EXPECT_THAT(sorted({"10", "2", "CreationTime", "Creation Time", "_x", "1"}, "en_US"),
              testing::ElementsAre("_x", "1", "10", "2", "Creation Time", "CreationTime"));
}

TEST(CollationTest, caseNeverCountsAndAccentsDoLast) {
  const model::KeyComparison compare = keyComparison(Locale("en_US"));
  EXPECT_EQ(compare("Exif", "eXIF"), 0);
  EXPECT_EQ(compare("\xC3\x89tat", "\xC3\xA9TAT"), 0);
  EXPECT_LT(compare("etat", "\xC3\xA9tat"), 0);
  EXPECT_LT(compare("\xC3\xA9tat", "etaz"), 0);
  EXPECT_EQ(compare("e\xCC\x81", "\xC3\xA9"), 0);
  EXPECT_LT(compare("\xC3\xA9", "f"), 0);
  EXPECT_LT(compare("{z}", "\xC3\xA9"), 0);
}

TEST(CollationTest, followsTheAlphabetOfTheLocale) {
  EXPECT_THAT(sorted({"z", "\xC3\xA4", "a"}, "de_DE"), testing::ElementsAre("a", "\xC3\xA4", "z"));
  EXPECT_THAT(sorted({"\xC3\xA4", "z", "a"}, "sv_SE"), testing::ElementsAre("a", "z", "\xC3\xA4"));
  EXPECT_THAT(sorted({"ch", "d", "cz"}, "cs_CZ"), testing::ElementsAre("cz", "d", "ch"));
  EXPECT_THAT(sorted({"ch", "d", "cz"}, "en_US"), testing::ElementsAre("ch", "cz", "d"));
}

// What ICU answers at the platform's settings.
class Oracle {
 public:
  explicit Oracle(const icu::Locale& locale)
      : _collator(icu::Collator::createInstance(locale, _status)) {
    _collator->setAttribute(UCOL_STRENGTH, UCOL_SECONDARY, _status);
    _collator->setAttribute(UCOL_ALTERNATE_HANDLING, UCOL_NON_IGNORABLE, _status);
    _collator->setAttribute(UCOL_NORMALIZATION_MODE, UCOL_ON, _status);
  }

  int compare(const std::string& left, const std::string& right) {
    return _collator->compareUTF8(left, right, _status);
  }

 private:
  UErrorCode _status = U_ZERO_ERROR;
  std::unique_ptr<icu::Collator> _collator;
};

TEST(CollationTest, everyLocaleComparesAsItsCollatorDoes) {
  const auto seed = std::random_device{}();
  SCOPED_TRACE(testing::Message() << "seed " << seed);
  std::mt19937 random(seed);
  const std::vector<std::string> pieces = {
      "a",  "A",  "b",  "C",  "d",  "e",  "f",  "g",    "h", "i", "I", "j",        "k",       "l",
      "m",  "n",  "o",  "p",  "q",  "r",  "s",  "t",    "u", "v", "w", "x",        "y",       "Z",
      "aa", "ch", "Ch", "dz", "lj", "ng", "sh", "0",    "9", "_", "-", " ",        "{",       "}",
      "/",  ":",  ".",  "'",  "$",  "~",  "\t", "\x01", "@", "*", "+", "\xC3\xA9", "\xC3\xA4"};
  int32_t count = 0;
  const icu::Locale* locales = icu::Collator::getAvailableLocales(count);
  ASSERT_GT(count, 50);
  for (int32_t index = 0; index < count; ++index) {
    const Locale locale(locales[index].getName());
    if (locale.name() != locales[index].getName()) continue;  // a variant
    Oracle oracle(locales[index]);
    const model::KeyComparison compare = keyComparison(locale);
    for (int round = 0; round < 2000; ++round) {
      std::string left;
      std::string right;
      for (auto length = random() % 4; length > 0; --length)
        left += pieces[random() % pieces.size()];
      for (auto length = random() % 4; length > 0; --length) {
        right += pieces[random() % pieces.size()];
      }
      ASSERT_EQ(sign(compare(left, right)), sign(oracle.compare(left, right)))
          << locale.name() << ": " << testing::PrintToString(left) << " and "
          << testing::PrintToString(right);
    }
  }
}

TEST(CollationTest, mayBeAskedFromSeveralThreads) {
  const model::KeyComparison compare = keyComparison(Locale("de_DE"));
  std::vector<int> results(4);
  std::vector<std::thread> threads;
  threads.reserve(results.size());
  for (int& result : results) {
    threads.emplace_back([&] { result = compare("\xC3\xA4", "z"); });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_THAT(results, testing::Each(testing::Lt(0)));
}

}  // namespace
}  // namespace foundation
