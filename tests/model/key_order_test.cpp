// SPDX-License-Identifier: MIT
#include "model/key_order.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unicode/ucol.h>

#include <memory>
#include <random>

namespace model {
namespace {

using ::testing::ElementsAre;

TEST(KeyOrder, IgnoresCaseAndPutsPunctuationFirst) {
  struct Row {
    const char* left;
    const char* right;
    int order;
  };
  const Row rows[] = {
      {"FlashPixVersion", "FNumber", -1},
      {"FocalLength", "FocalLenIn35mmFilm", -1},
      {"SubjectDistance", "SubjectDistRange", -1},
      {"SubsecTime", "SubsecTimeDigitized", -1},
      {"Depth", "DPIHeight", -1},
      {"CopyrightNotice", "Country/PrimaryLocationName", -1},
      {"Creation Time", "CreationTime", -1},
      {"{Exif}", "{ExifAux}", -1},
      {"{MakerApple}", "ColorModel", -1},
      {"10", "2", -1},
      {"_x", "0", -1},
      {"make", "MAKE", 0},
      {"", "a", -1},
      {"", "", 0},
  };
  for (const Row& row : rows) {
    const int order = compareKeys(row.left, row.right);
    EXPECT_EQ(order, row.order) << row.left << " " << row.right;
    EXPECT_EQ(compareKeys(row.right, row.left), -order) << row.left << " " << row.right;
  }
}

TEST(KeyOrder, PutsOtherCharactersBehindAscii) {
  EXPECT_EQ(compareKeys("é", "z"), 1);
  EXPECT_EQ(compareKeys("aé", "az"), 1);
  EXPECT_EQ(compareKeys("é", "è"), 1);
  EXPECT_EQ(compareKeys("é", "é"), 0);
  EXPECT_EQ(compareKeys("\U0001F4F7", "\uFFFD"), 1);
  EXPECT_EQ(compareKeys("\xFF", "\xFE"), 0);
}

// The root collation at the strength that ignores case only: what compareKeys promises for ASCII.
class RootCollator {
 public:
  RootCollator() : _collator(nullptr, &ucol_close) {
    UErrorCode status = U_ZERO_ERROR;
    _collator.reset(ucol_open("root", &status));
    ucol_setStrength(_collator.get(), UCOL_SECONDARY);
    ucol_setAttribute(_collator.get(), UCOL_ALTERNATE_HANDLING, UCOL_NON_IGNORABLE, &status);
    EXPECT_TRUE(U_SUCCESS(status));
  }

  int compare(std::string_view left, std::string_view right) const {
    UErrorCode status = U_ZERO_ERROR;
    return ucol_strcollUTF8(_collator.get(), left.data(), static_cast<std::int32_t>(left.size()),
                            right.data(), static_cast<std::int32_t>(right.size()), &status);
  }

 private:
  std::unique_ptr<UCollator, decltype(&ucol_close)> _collator;
};

TEST(KeyOrder, AgreesWithTheRootCollationOnAllPairsOfAsciiCharacters) {
  const RootCollator collator;
  for (int left = 0; left < 128; ++left) {
    for (int right = 0; right < 128; ++right) {
      const std::string a(1, static_cast<char>(left));
      const std::string b(1, static_cast<char>(right));
      EXPECT_EQ(compareKeys(a, b), collator.compare(a, b)) << left << " " << right;
    }
  }
}

TEST(KeyOrder, AgreesWithTheRootCollationOnRandomAsciiTexts) {
  const RootCollator collator;
  std::string ascii;
  for (int character = 0; character < 128; ++character) ascii += static_cast<char>(character);
  std::mt19937 random(10646);
  for (const std::string& alphabet : {ascii, std::string("aAbB {}1.\x07")}) {
    const auto anyText = [&] {
      std::string text(random() % 7, ' ');
      for (char& character : text) character = alphabet[random() % alphabet.size()];
      return text;
    };
    for (int round = 0; round < 200000; ++round) {
      const std::string a = anyText();
      const std::string b = anyText();
      ASSERT_EQ(compareKeys(a, b), collator.compare(a, b))
          << ::testing::PrintToString(a) << " " << ::testing::PrintToString(b);
    }
  }
}

TEST(KeyOrder, SortsTheKeysOfADictionary) {
  const Dictionary dictionary = {{"PixelWidth", 1}, {"{TIFF}", 2}, {"Depth", 3}, {"DPIWidth", 4}};
  EXPECT_THAT(sortedKeys(dictionary), ElementsAre("{TIFF}", "Depth", "DPIWidth", "PixelWidth"));
  EXPECT_THAT(sortedKeys({}), ElementsAre());
}

TEST(KeyOrder, KeepsLiteralOrderWhereKeysCompareEqual) {
  EXPECT_THAT(sortedKeys({{"make", 1}, {"Make", 2}, {"MAKE", 3}, {"a", 4}}),
              ElementsAre("a", "MAKE", "Make", "make"));
}

TEST(KeyOrder, SortsByAnyComparison) {
  const auto backwards = [](std::string_view left, std::string_view right) {
    return right.compare(left);
  };
  EXPECT_THAT(sortedKeys({{"a", 1}, {"b", 2}}, backwards), ElementsAre("b", "a"));
}

}  // namespace
}  // namespace model
