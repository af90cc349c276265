// SPDX-License-Identifier: MIT
#include "model/number_text.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>

namespace model {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

template <typename Number>
struct Row {
  Number number;
  const char* text;
};

TEST(NumberText, PrintsIntegersInDecimal) {
  constexpr Row<std::int64_t> rows[] = {
      {0, "0"},
      {-7, "-7"},
      {4032, "4032"},
      {std::numeric_limits<std::int64_t>::max(), "9223372036854775807"},
      {std::numeric_limits<std::int64_t>::min(), "-9223372036854775808"},
  };
  for (const auto& row : rows) EXPECT_EQ(integerText(row.number), row.text);
  EXPECT_EQ(largeIntegerText(std::numeric_limits<std::uint64_t>::max()), "18446744073709551615");
}

TEST(NumberText, PadsIntegersWithZeros) {
  EXPECT_EQ(paddedIntegerText(7, 2), "07");
  EXPECT_EQ(paddedIntegerText(123, 2), "123");
  EXPECT_EQ(paddedIntegerText(-7, 4), "-007");
  EXPECT_EQ(paddedIntegerText(0, 0), "0");
}

TEST(NumberText, PrintsRealsAsShortAsTheyReadBack) {
  const Row<double> rows[] = {
      {0.0, "0"},
      {-0.0, "-0"},
      {72.0, "72"},
      {48.85, "48.85"},
      {-0.67, "-0.67"},
      {0.25, "0.25"},
      {1.0 / 120, "0.008333333333333333"},
      {1.0 / 3, "0.3333333333333333"},
      {2.0 / 3, "0.6666666666666666"},
      {1.0 / 33, "0.030303030303030304"},
      {0.1 + 0.2, "0.30000000000000004"},
      {1e-4, "0.0001"},
      {0.00012345678901234567, "0.00012345678901234567"},
      {1e-5, "1e-05"},
      {1.5e-5, "1.5e-05"},
      {9.999999999999999e-5, "9.999999999999999e-05"},
      {999999999999999.9, "999999999999999.9"},
      {1e15, "1000000000000000"},
      {1.5e15, "1500000000000000"},
      {9e15, "9000000000000000"},
      {9007199254740991.0, "9007199254740991"},
      {9007199254740992.0, "9007199254740992"},
      {9999999999999998.0, "9999999999999998"},
      {1e16, "1e+16"},
      {12345678901234567890.0, "1.2345678901234567e+19"},
      {0x1p-44, "5.684341886080802e-14"},
      {0x1p-1022, "2.2250738585072014e-308"},
      {5e-324, "5e-324"},
      {1.7976931348623157e308, "1.7976931348623157e+308"},
      {1e23, "1e+23"},
      {1e100, "1e+100"},
      {notANumber, "nan"},
      {-notANumber, "nan"},
      {infinity, "inf"},
      {-infinity, "-inf"},
  };
  for (const auto& row : rows) EXPECT_EQ(realText(row.number), row.text) << row.number;
}

// The same text by the standard library's own conversion.
std::string referenceText(double value) {
  std::array<char, 400> text{};
  const double magnitude = std::abs(value);
  const bool plain = magnitude == 0 || (magnitude >= 1e-4 && magnitude < 1e16);
  const auto format = plain ? std::chars_format::fixed : std::chars_format::scientific;
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value, format).ptr};
}

TEST(NumberText, AgreesWithTheStandardConversionOnAllPowersOfTwoAndTheirNeighbours) {
  for (int exponent = -1074; exponent <= 1023; ++exponent) {
    const double power = std::ldexp(1.0, exponent);
    for (const double value :
         {power, std::nextafter(power, 0.0), std::nextafter(power, infinity)}) {
      EXPECT_EQ(realText(value), referenceText(value));
    }
  }
}

TEST(NumberText, AgreesWithTheStandardConversionOnRandomReals) {
  std::mt19937_64 random(2012);
  for (int round = 0; round < 300000; ++round) {
    const auto anyBits = std::bit_cast<double>(random());
    // A number of everyday size with all its bits, and one of few decimals.
    const double everyday =
        std::ldexp(static_cast<double>(random() >> 11), -static_cast<int>(random() % 72));
    const double decimal = static_cast<double>(random() % 10'000'000) / 1e4;
    const double ratio =
        static_cast<double>(random() % 10'000) / static_cast<double>(random() % 999 + 1);
    for (const double value : {anyBits, everyday, decimal, -ratio}) {
      if (!std::isfinite(value)) continue;
      ASSERT_EQ(realText(value), referenceText(value));
    }
  }
}

TEST(NumberText, PrintsFixedDecimals) {
  struct FixedRow {
    double number;
    int decimals;
    const char* text;
  };
  const FixedRow rows[] = {
      {3.04333, 2, "3.04"},   {29.97, 3, "29.970"}, {180.000005, 2, "180.00"},
      {0.5, 0, "0"},          {1.5, 0, "2"},        {2.5, 0, "2"},
      {-0.001, 2, "-0.00"},   {44100, 0, "44100"},  {1e20, 1, "100000000000000000000.0"},
      {notANumber, 3, "nan"}, {infinity, 3, "inf"}, {-infinity, 0, "-inf"},
  };
  for (const auto& row : rows) EXPECT_EQ(fixedText(row.number, row.decimals), row.text);
  EXPECT_EQ(fixedText(-std::numeric_limits<double>::max(), 3).size(), 1 + 309 + 4U);
}

TEST(NumberText, WidensAFloatByItsText) {
  const Row<float> rows[] = {
      {0.1F, "0.1"},
      {0.008843093F, "0.008843093"},
      {16777216.0F, "16777216"},
      {-2.2F, "-2.2"},
      {1e-7F, "1e-07"},
      {3.4028235e38F, "3.4028235e+38"},
      {1e-45F, "1e-45"},
      {0x1p-20F, "9.536743e-07"},
      {9.8607613e-32F, "9.8607613e-32"},
  };
  for (const auto& row : rows) EXPECT_EQ(realText(widenedByText(row.number)), row.text);
  EXPECT_EQ(widenedByText(0.0F), 0.0);
  EXPECT_TRUE(std::signbit(widenedByText(-0.0F)));
  EXPECT_TRUE(std::isnan(widenedByText(std::numeric_limits<float>::quiet_NaN())));
  EXPECT_EQ(widenedByText(-std::numeric_limits<float>::infinity()), -infinity);
}

TEST(NumberText, WidensRandomFloatsByTheTextOfTheStandardConversion) {
  std::mt19937 random(2016);
  for (int round = 0; round < 200000; ++round) {
    const auto value = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
    if (!std::isfinite(value)) continue;
    std::array<char, 64> text{};
    std::to_chars(text.data(), text.data() + text.size() - 1, value, std::chars_format::scientific);
    ASSERT_EQ(widenedByText(value), std::strtod(text.data(), nullptr)) << text.data();
  }
}

TEST(NumberText, ReadsTheNumberAtTheFront) {
  struct ParseRow {
    const char* text;
    double number;
  };
  const ParseRow rows[] = {
      {"48.8577", 48.8577},
      {"  \t\n-0.5m", -0.5},
      {"+7", 7},
      {"1/120", 1},
      {"0.008333", 0.008333},
      {".5", 0.5},
      {"5.", 5},
      {"1e3", 1000},
      {"1E-3x", 0.001},
      {"1e", 1},
      {"1e+", 1},
      {"1.5e+2.5", 150},
      {"123456789012345678", 123456789012345678.0},
      {"0.1234567890123456789", 0.1234567890123456789},
      {"1e400", infinity},
      {"-1e400", -infinity},
      {"1e-400", 0},
      {"1,5", 1},
      {"0x10", 0},
      {"inf", 0},
      {"nan", 0},
      {".", 0},
      {"-", 0},
      {"-.e5", 0},
      {"- 1", 0},
      {"e5", 0},
      {"", 0},
      {"   ", 0},
      {"\xA0"
       "1",
       0},
  };
  for (const auto& row : rows) EXPECT_EQ(parseRealPrefix(row.text), row.number) << row.text;
  EXPECT_TRUE(std::signbit(parseRealPrefix("-0")));
  EXPECT_EQ(parseRealPrefix(std::string_view("1\0"
                                             "2",
                                             3)),
            1);
  EXPECT_EQ(parseRealPrefix(std::string_view("123").substr(0, 2)), 12);
}

TEST(NumberText, ReadsRandomTextsAsTheCLibraryDoes) {
  constexpr std::string_view alphabet = "0123456789012345678901234567890123456789..+-eE ";
  std::mt19937 random(1999);
  for (int round = 0; round < 300000; ++round) {
    std::string text(random() % 24, ' ');
    for (char& character : text) character = alphabet[random() % alphabet.size()];
    ASSERT_EQ(parseRealPrefix(text), std::strtod(text.c_str(), nullptr)) << text;
  }
}

TEST(NumberText, ReadsVeryLongNumbers) {
  EXPECT_EQ(parseRealPrefix("1" + std::string(1'000'000, '0')), infinity);
  EXPECT_EQ(parseRealPrefix("0." + std::string(1'000'000, '0') + "1"), 0);
  EXPECT_EQ(parseRealPrefix("0." + std::string(400, '0') + "1e401"), 1);
  EXPECT_EQ(parseRealPrefix("1e" + std::string(1000, '9')), infinity);
}

// The C library's own locale, for as long as the object lives.
class LocaleGuard {
 public:
  explicit LocaleGuard(const char* name) {
    setenv("LOCPATH", TEST_LOCALE_FOLDER, 1);
    _isSet = std::setlocale(LC_ALL, name) != nullptr;
  }
  ~LocaleGuard() {
    std::setlocale(LC_ALL, "C");
    unsetenv("LOCPATH");
  }
  LocaleGuard(const LocaleGuard&) = delete;
  LocaleGuard& operator=(const LocaleGuard&) = delete;

  bool isSet() const { return _isSet; }

 private:
  bool _isSet = false;
};

void expectTheSameNumbersUnder(const char* name, std::string_view radix) {
  const LocaleGuard locale(name);
  if (!locale.isSet()) GTEST_SKIP() << name << " cannot be made here";
  ASSERT_EQ(std::localeconv()->decimal_point, radix);
  EXPECT_EQ(realText(48.85), "48.85");
  EXPECT_EQ(realText(1.5e-5), "1.5e-05");
  EXPECT_EQ(realText(1.25e-300), "1.25e-300");
  EXPECT_EQ(realText(0x1p-44), "5.684341886080802e-14");
  EXPECT_EQ(fixedText(-1234.5678, 2), "-1234.57");
  EXPECT_EQ(fixedText(1234.5678, 0), "1235");
  EXPECT_EQ(realText(widenedByText(0.008843093F)), "0.008843093");
  EXPECT_EQ(parseRealPrefix("48.85x"), 48.85);
  EXPECT_EQ(parseRealPrefix("0.1234567890123456789"), 0.1234567890123456789);
  EXPECT_EQ(parseRealPrefix("1.5e2"), 150);
  EXPECT_EQ(parseRealPrefix("1,5e2"), 1);
}

TEST(NumberText, StaysTheSameUnderALocaleWithAComma) {
  expectTheSameNumbersUnder("de_DE.UTF-8", ",");
}

TEST(NumberText, StaysTheSameUnderALocaleWhosePointHasTwoBytes) {
  expectTheSameNumbersUnder("ps_AF.UTF-8", "\u066B");
}

}  // namespace
}  // namespace model
