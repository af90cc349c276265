// SPDX-License-Identifier: MIT
#include "foundation/byte_count.h"

#include <gtest/gtest.h>

#include <limits>

namespace foundation {
namespace {

TEST(ByteCountTest, wordsSizesInAmericanEnglish) {
  using Limits = std::numeric_limits<std::int64_t>;
  const struct {
    std::int64_t bytes;
    std::string_view text;
  } cases[] = {
      {0, "Zero KB"},
      {1, "1 byte"},
      {2, "2 bytes"},
      {499, "499 bytes"},
      {999, "999 bytes"},
      {1000, "1 KB"},
      {1023, "1 KB"},
      {1024, "1 KB"},
      {1499, "1 KB"},
      {1500, "2 KB"},
      {2500, "3 KB"},
      {9999, "10 KB"},
      {11999, "12 KB"},
      {12345, "12 KB"},
      {900000, "900 KB"},
      {999499, "999 KB"},
      {999500, "1 MB"},
      {999999, "1 MB"},
      {1000000, "1 MB"},
      {1049999, "1 MB"},
      {1050000, "1.1 MB"},
      {1234567, "1.2 MB"},
      {1500000, "1.5 MB"},
      {2400000, "2.4 MB"},
      {4000000, "4 MB"},
      {9990000, "10 MB"},
      {12345678, "12.3 MB"},
      {99950000, "100 MB"},
      {123456789, "123.5 MB"},
      {999900000, "999.9 MB"},
      {999949999, "999.9 MB"},
      {999950000, "1 GB"},
      {999999999, "1 GB"},
      {1000000000, "1 GB"},
      {1005000000, "1.01 GB"},
      {1050000000, "1.05 GB"},
      {1100000000, "1.1 GB"},
      {1234567898, "1.23 GB"},
      {3000000000, "3 GB"},
      {12345678987, "12.35 GB"},
      {999994999999, "999.99 GB"},
      {999995000000, "1 TB"},
      {1500000000000, "1.5 TB"},
      {999994999999999, "999.99 TB"},
      {999995000000000, "1 PB"},
      {1234567898765432, "1.23 PB"},
      {Limits::max(), "9,223.37 PB"},
      {-1, "-1 byte"},
      {-2, "-2 bytes"},
      {-1023, "-1 KB"},
      {-999500, "-1 MB"},
      {-1050000, "-1.1 MB"},
      {-1234567898, "-1.23 GB"},
      {-1294967296, "-1.29 GB"},
      {Limits::min(), "-9,223.37 PB"},
  };
  for (const auto& row : cases)
    EXPECT_EQ(byteCountText(row.bytes, Locale()), row.text) << row.bytes;
}

TEST(ByteCountTest, twoSelectedPhotosAddUpToFourMegabytes) {
  EXPECT_EQ(byteCountText(1'500'000 + 2'500'000, Locale("C")), "4 MB");
}

TEST(ByteCountTest, localeDataAgreesWithTheFixedAmericanForm) {
  const Locale english("en");
  for (std::int64_t bytes = 0; bytes < 5'000'000'000'000'000; bytes = bytes * 13 / 10 + 1) {
    EXPECT_EQ(byteCountText(bytes, english), byteCountText(bytes, Locale())) << bytes;
    EXPECT_EQ(byteCountText(-bytes, english), byteCountText(-bytes, Locale())) << -bytes;
  }
}

TEST(ByteCountTest, followsOtherLocales) {
  const struct {
    std::string_view locale;
    std::int64_t bytes;
    std::string_view text;
  } cases[] = {
      {"de_DE", 2'400'000, "2,4 MB"}, {"de_DE", 12'345, "12 KB"},
      {"de_DE", 999, "999 Byte"},     {"de_DE", 0, "0 KB"},
      {"fr_FR", 2'400'000, "2,4 Mo"}, {"fr_FR", 12'345, "12 Ko"},
      {"fr_FR", 1, "1 octet"},        {"fr_FR", 999, "999 octets"},
      {"fr_FR", 0, "Zéro Ko"},        {"en_GB", 2'400'000, "2.4 MB"},
      {"en_GB", 12'345, "12 KB"},     {"en_GB", 0, "Zero KB"},
      {"it_IT", 0, "Zero KB"},        {"ja_JP", 2'400'000, "2.4 MB"},
      {"ja_JP", 0, "0 KB"},           {"de_DE", -1'294'967'296, "-1,29 GB"},
  };
  for (const auto& row : cases) {
    EXPECT_EQ(byteCountText(row.bytes, Locale(row.locale)), row.text)
        << row.locale << " " << row.bytes;
  }
}

TEST(ByteCountTest, anUnknownLanguageReadsAsAmericanEnglish) {
  EXPECT_EQ(byteCountText(2'400'000, Locale("qq_QQ")), "2.4 MB");
  EXPECT_EQ(byteCountText(0, Locale("qq_QQ")), "Zero KB");
}

}  // namespace
}  // namespace foundation
