// SPDX-License-Identifier: MIT
#include "media/image/blocks/icc_profile.h"

#include <gtest/gtest.h>

#include "media/image/blocks/metadata_blocks.h"
#include "tests/media/image/container_builder.h"

namespace media::image {
namespace {

using namespace std::string_literals;

std::string utf16(std::string_view ascii) {
  std::string bytes;
  for (const char character : ascii) bytes += "\0"s + character;
  return bytes;
}

struct Localized {
  std::string language;
  std::string text;
};

std::string localizedTag(const std::vector<Localized>& texts) {
  std::string records;
  std::string strings;
  const std::size_t start = 16 + 12 * texts.size();
  for (const Localized& each : texts) {
    const std::string bytes = utf16(each.text);
    records += each.language + bigEndian(bytes.size(), 4) + bigEndian(start + strings.size(), 4);
    strings += bytes;
  }
  return "mluc\0\0\0\0"s + bigEndian(texts.size(), 4) + bigEndian(12, 4) + records + strings;
}

std::optional<std::string> nameOf(std::string_view profile) {
  return iccProfileName(viewOf(profile));
}

TEST(IccProfile, version2NamesAreAscii) {
  EXPECT_EQ(nameOf(iccProfile("sRGB IEC61966-2.1")), "sRGB IEC61966-2.1");
}

TEST(IccProfile, version2NamesMayBeUnicodeOnly) {
  const std::string tag = "desc\0\0\0\0\0\0\0\1\0enUS"s + bigEndian(2, 4) + utf16("P3");
  EXPECT_EQ(nameOf(iccProfileOfTag(tag)), "P3");
}

TEST(IccProfile, version4NamesAreEnglishWhereTheyCan) {
  EXPECT_EQ(nameOf(iccProfileOfTag(localizedTag({{"deDE", "Bildschirm"}, {"enUS", "Display"}}))),
            "Display");
  EXPECT_EQ(nameOf(iccProfileOfTag(localizedTag({{"deDE", "Bildschirm"}, {"frFR", "Affichage"}}))),
            "Bildschirm");
}

TEST(IccProfile, whatIsDamagedHasNoName) {
  const std::string whole = iccProfile("Display P3");
  for (std::size_t length = 0; length < 128 + 28 + 12; ++length) {
    EXPECT_FALSE(nameOf(whole.substr(0, length))) << length;
  }
  std::string tags = whole;
  tags.replace(128, 4, "\xFF\xFF\xFF\xFF");
  EXPECT_FALSE(nameOf(tags));
  const std::string damagedTags[] = {
      "",
      "text\0\0\0\0name\0"s,
      "desc\0\0\0\0"s,
      "desc\0\0\0\0\xFF\xFF\xFF\xFF"s,
      "desc\0\0\0\0\0\0\0\0\0\0\0\0\xFF\xFF\xFF\xFF"s,
      "mluc\0\0\0\0\xFF\xFF\xFF\xFF\0\0\0\x0C"s,
      "mluc\0\0\0\0\0\0\0\1\0\0\0\x0C"s + "enUS\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF",
      localizedTag({{"enUS", ""}}),
  };
  for (const std::string& tag : damagedTags) {
    EXPECT_FALSE(nameOf(iccProfileOfTag(tag))) << testing::PrintToString(tag);
  }
}

}  // namespace
}  // namespace media::image
