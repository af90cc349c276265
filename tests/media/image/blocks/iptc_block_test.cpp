// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "media/image/blocks/limits.h"
#include "media/image/blocks/metadata_blocks.h"
#include "tests/media/image/container_builder.h"

namespace media::image {
namespace {

using namespace std::string_literals;
using model::Array;
using model::Value;

model::Dictionary iptcOf(std::string_view datasets) {
  model::Dictionary properties;
  readIptcBlock(viewOf(datasets), properties);
  const Value* section = model::find(properties, "{IPTC}");
  return section ? *section->asDictionary() : model::Dictionary();
}

TEST(IptcBlock, showsEveryDatasetUnderItsKey) {
  struct Case {
    int number;
    const char* key;
    bool isArray;
  };
  const Case cases[] = {
      {3, "ObjectTypeReference", false},
      {4, "ObjectAttributeReference", true},
      {5, "ObjectName", false},
      {7, "EditStatus", false},
      {8, "EditorialUpdate", false},
      {10, "Urgency", false},
      {12, "SubjectReference", true},
      {15, "Category", false},
      {20, "SupplementalCategory", true},
      {22, "FixtureIdentifier", false},
      {25, "Keywords", true},
      {26, "ContentLocationCode", true},
      {27, "ContentLocationName", true},
      {30, "ReleaseDate", false},
      {35, "ReleaseTime", false},
      {37, "ExpirationDate", false},
      {38, "ExpirationTime", false},
      {40, "SpecialInstructions", false},
      {42, "ActionAdvised", false},
      {45, "ReferenceService", true},
      {47, "ReferenceDate", true},
      {50, "ReferenceNumber", true},
      {55, "DateCreated", false},
      {60, "TimeCreated", false},
      {62, "DigitalCreationDate", false},
      {63, "DigitalCreationTime", false},
      {65, "OriginatingProgram", false},
      {70, "ProgramVersion", false},
      {75, "ObjectCycle", false},
      {80, "Byline", true},
      {85, "BylineTitle", true},
      {90, "City", false},
      {92, "SubLocation", false},
      {95, "Province/State", false},
      {100, "Country/PrimaryLocationCode", false},
      {101, "Country/PrimaryLocationName", false},
      {103, "OriginalTransmissionReference", false},
      {105, "Headline", false},
      {110, "Credit", false},
      {115, "Source", false},
      {116, "CopyrightNotice", false},
      {118, "Contact", true},
      {120, "Caption/Abstract", false},
      {122, "Writer/Editor", true},
      {130, "ImageType", false},
      {131, "ImageOrientation", false},
      {135, "LanguageIdentifier", false},
  };
  for (const Case& each : cases) {
    const Value expected = each.isArray ? Value(Array{"text"}) : Value("text");
    EXPECT_EQ(iptcOf(iptcDataset(2, each.number, "text")),
              (model::Dictionary{{each.key, expected}}))
        << each.number;
  }
}

TEST(IptcBlock, repeatedDatasetsBecomeArraysOrTheFirstStays) {
  const auto iptc = iptcOf(iptcDataset(2, 25, "one") + iptcDataset(2, 90, "first") +
                           iptcDataset(2, 25, "two") + iptcDataset(2, 90, "second"));
  EXPECT_EQ(iptc.at("Keywords"), (Array{"one", "two"}));
  EXPECT_EQ(iptc.at("City"), "first");
}

TEST(IptcBlock, theCharacterSetIsAnnounced) {
  const std::string announced = iptcDataset(1, 90, "\x1B%G");
  EXPECT_EQ(iptcOf(announced + iptcDataset(2, 90, "Zürich")).at("City"), "Zürich");
  EXPECT_EQ(iptcOf(announced + iptcDataset(2, 90, "Z\xFCrich")).at("City"), "Z\uFFFDrich");
  EXPECT_EQ(iptcOf(iptcDataset(2, 90, "Z\xFCrich")).at("City"), "Zürich");
  EXPECT_EQ(iptcOf(iptcDataset(2, 90, "Zürich")).at("City"), "Zürich");
}

TEST(IptcBlock, withoutACharacterSetHighBytesAreLetters) {
  EXPECT_EQ(iptcOf(iptcDataset(2, 120, "d\x92Orsay \x96 Paris")).at("Caption/Abstract"),
            "d’Orsay – Paris");
}

TEST(IptcBlock, emptyDatasetsDoNotHideFilledOnes) {
  const std::string empty = iptcDataset(2, 90, "") + iptcDataset(2, 25, "") + iptcDataset(2, 5, "");
  const std::string filled = iptcDataset(2, 90, "Kingston") + iptcDataset(2, 25, "harbour");
  const model::Dictionary expected = {
      {"City", "Kingston"}, {"Keywords", Array{"harbour"}}, {"ObjectName", ""}};
  model::Dictionary properties;
  readIptcBlock(viewOf(empty), properties);
  EXPECT_TRUE(hasEmptyDatasets(properties));
  readIptcBlock(viewOf(filled), properties);
  EXPECT_EQ(properties.at("{IPTC}"), Value(expected));
  readIptcBlock(viewOf(empty), properties);
  EXPECT_EQ(properties.at("{IPTC}"), Value(expected));
  EXPECT_EQ(iptcOf(iptcDataset(2, 90, "") + filled).at("City"), "Kingston");
  EXPECT_FALSE(hasEmptyDatasets({{"{IPTC}", model::Dictionary{{"City", "Kingston"}}}}));
  EXPECT_FALSE(hasEmptyDatasets({}));
}

TEST(IptcBlock, extendedDatasetsHaveALengthOfTheirOwn) {
  const std::string text(40'000, 'x');
  EXPECT_EQ(
      iptcOf("\x1C\x02\x78\x80\x04"s + bigEndian(text.size(), 4) + text).at("Caption/Abstract"),
      text);
  for (const std::string& damaged :
       {"\x1C\x02\x78\x80\x04\xFF\xFF\xFF\xFF"s, "\x1C\x02\x78\x80\x05\0\0\0\0\1x"s,
        "\x1C\x02\x78\xFF\xFF"s, "\x1C\x02\x78\x80\x04\0"s}) {
    EXPECT_TRUE(iptcOf(damaged).empty());
  }
}

TEST(IptcBlock, whatIsNoDatasetEndsTheWalk) {
  const std::string whole = iptcDataset(2, 5, "title") + iptcDataset(2, 90, "Kingston");
  for (std::size_t length = 0; length < whole.size(); ++length) {
    EXPECT_FALSE(iptcOf(whole.substr(0, length)).contains("City")) << length;
  }
  EXPECT_TRUE(iptcOf(std::string(100, '\0') + whole).empty());
  EXPECT_EQ(iptcOf(whole + std::string(3, '\0')).size(), 2U);
}

TEST(IptcBlock, otherRecordsAndNumbersAreNotShown) {
  EXPECT_TRUE(iptcOf(iptcDataset(3, 90, "x") + iptcDataset(2, 200, "x")).empty());
}

TEST(IptcBlock, listsAreBounded) {
  std::string many;
  for (std::size_t index = 0; index < limits.valuesPerField + 10; ++index) {
    many += iptcDataset(2, 25, "");
  }
  EXPECT_EQ(iptcOf(many).at("Keywords").asArray()->size(), limits.valuesPerField);
}

TEST(IptcBlock, whatIsThereStays) {
  model::Dictionary properties = {{"{IPTC}", model::Dictionary{{"City", "there"}}}};
  const std::string datasets = iptcDataset(2, 90, "new") + iptcDataset(2, 5, "title");
  readIptcBlock(viewOf(datasets), properties);
  EXPECT_EQ(*entry(properties, "{IPTC}", "City"), "there");
  EXPECT_EQ(*entry(properties, "{IPTC}", "ObjectName"), "title");
}

}  // namespace
}  // namespace media::image
