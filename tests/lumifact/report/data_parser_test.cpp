// SPDX-License-Identifier: MIT
#include "lumifact/report/data_parser.h"

#include <gtest/gtest.h>

#include "model/number_text.h"

namespace lumifact {
namespace {

using model::Array;
using model::Dictionary;
using model::Value;

std::string report(Dictionary& properties) {
  std::optional<std::string> coordinates;
  return DataParser::parseDataToString(properties, coordinates);
}

std::string report(Dictionary&& properties) {
  return report(properties);
}

TEST(DataParser, HasNothingToSayOfAnEmptyDictionary) {
  Dictionary properties;
  std::optional<std::string> coordinates;
  EXPECT_EQ(DataParser::parseDataToString(properties, coordinates), "");
  EXPECT_EQ(coordinates, std::nullopt);
  EXPECT_TRUE(properties.empty());
}

TEST(DataParser, ReportsAPhotoWithPlaceAndCamera) {
  const Dictionary gps = {
      {"Latitude", 48.85}, {"LatitudeRef", "N"}, {"Longitude", 2.35}, {"LongitudeRef", "W"}};
  Dictionary properties = {
      {"ColorModel", "RGB"},
      {"Orientation", 6},
      {"PixelWidth", 4032},
      {"{GPS}", gps},
      {"{TIFF}", Dictionary{{"Make", "Apple"}, {"Orientation", 3}, {"ResolutionUnit", 2}}},
  };
  std::optional<std::string> coordinates;
  EXPECT_EQ(DataParser::parseDataToString(properties, coordinates), R"(
ColorModel = RGB
Orientation = 90° CW - Portrait (6)
PixelWidth = 4032

{GPS} =
{
  Latitude = 48.85
  LatitudeRef = N
  Longitude = -2.35
  LongitudeRef = W
}

{TIFF} =
{
  Make = Apple
  Orientation = 180° - Landscape (3)
  ResolutionUnit = Inch (2)
})");
  EXPECT_EQ(coordinates, "48.85,-2.35");
  const Dictionary afterwards = {
      {"ColorModel", "RGB"},
      {"Orientation", "90° CW - Portrait (6)"},
      {"PixelWidth", 4032},
      {"{GPS}", gps},
      {"{TIFF}", Dictionary{{"Make", "Apple"},
                            {"Orientation", "180° - Landscape (3)"},
                            {"ResolutionUnit", "Inch (2)"}}},
  };
  EXPECT_EQ(properties, afterwards);
}

TEST(DataParser, NamesOrientationThreeDifferentlyInTiff) {
  EXPECT_EQ(report({{"Orientation", 3}, {"{TIFF}", Dictionary{{"Orientation", 3}}}}),
            "\nOrientation = 0° - Landscape (3)"
            "\n\n{TIFF} =\n{\n  Orientation = 180° - Landscape (3)\n}");
}

TEST(DataParser, LeavesOrientationsOutsideTheTableAsTheyAre) {
  for (const int orientation : {0, 9, -1}) {
    Dictionary properties = {{"Orientation", orientation}};
    EXPECT_EQ(report(properties), "\nOrientation = " + std::to_string(orientation));
    EXPECT_EQ(properties, (Dictionary{{"Orientation", orientation}}));
  }
  EXPECT_EQ(report({{"Orientation", "up"}}), "\nOrientation = up");
}

TEST(DataParser, ReadsAnOrientationThatIsAString) {
  EXPECT_EQ(report({{"Orientation", "8"}}), "\nOrientation = 90° CCW - Portrait (8)");
}

TEST(DataParser, TakesADictionaryUnderOrientationForASection) {
  EXPECT_EQ(report({{"Orientation", Dictionary{{"a", 1}}}}), "\n\nOrientation = \n{\n  a = 1;\n}");
}

TEST(DataParser, PutsTheMakerSectionLast) {
  Dictionary properties = {
      {"{MakerApple}", Dictionary{{"1", 9}, {"8", Array{0.5, -1}}}},
      {"{TIFF}", Dictionary{{"Make", "Apple"}}},
      {"{PNG}", Dictionary{{"Gamma", 2}}},
  };
  const Dictionary before = properties;
  EXPECT_EQ(report(properties), R"(

{PNG} = 
{
  Gamma = 2;
}

{TIFF} =
{
  Make = Apple
}

{MakerApple} = 
{
  1 = 9;
  8 = (
    "0.5",
    "-1"
  );
})");
  EXPECT_EQ(properties, before);
}

TEST(DataParser, PrintsAMakerSectionThatIsNoDictionaryTwice) {
  EXPECT_EQ(report({{"Depth", 8}, {"{MakerApple}", "note 1"}}),
            "\n{MakerApple} = note 1\nDepth = 8\n\n{MakerApple} = \n\"note 1\"");
  EXPECT_EQ(report({{"{MakerApple}", model::Data{1, 255}}}),
            "\n{MakerApple} = <01ff>\n\n{MakerApple} = \n<01ff>");
}

TEST(DataParser, DescribesSectionsItHasNoRulesFor) {
  Dictionary properties = {{"{JFIF}", Dictionary{{"DensityUnit", 1}, {"XDensity", 72}}}};
  const Dictionary before = properties;
  EXPECT_EQ(report(properties), "\n\n{JFIF} = \n{\n  DensityUnit = 1;\n  XDensity = 72;\n}");
  EXPECT_EQ(properties, before);
}

TEST(DataParser, DescribesADictionaryWhoseKeyHasNoBraces) {
  EXPECT_EQ(report({{"Auxiliary", Dictionary{{"Width", 1}}}, {"Depth", 8}}),
            "\nDepth = 8\n\nAuxiliary = \n{\n  Width = 1;\n}");
}

TEST(DataParser, KeepsFourBlanksALevelForArraysAtTheTop) {
  Dictionary properties = {{"Profiles", Array{"sRGB", Array{1, "a b"}}}};
  EXPECT_EQ(report(properties),
            "\nProfiles = (\n    sRGB,\n    (\n        1,\n        \"a b\"\n    )\n)");
  EXPECT_EQ(properties, (Dictionary{{"Profiles", Array{"sRGB", Array{1, "a b"}}}}));
}

TEST(DataParser, HandlesASectionThatIsNoDictionaryAsAPlainValue) {
  EXPECT_EQ(report({{"{Exif}", "gone"}, {"{GPS}", Array{1}}, {"{TIFF}", 7}}),
            "\n{Exif} = gone\n{GPS} = (\n    1\n)\n{TIFF} = 7");
}

TEST(DataParser, PrintsPlainValuesOfEveryKind) {
  EXPECT_EQ(report({{"a", "text \"quoted\"\n"},
                    {"b", 0.008333333333333333},
                    {"c", true},
                    {"d", 72.0},
                    {"e", model::Date{1538309391}},
                    {"f", model::Data{0x6c, 0x75, 0x6d, 0x69, 0x66}},
                    {"g", Value()},
                    {"h", -5}}),
            "\na = text \"quoted\"\n\nb = 0.008333333333333333\nc = 1\nd = 72"
            "\ne = 2018-09-30 12:09:51 +0000\nf = <6c756d69 66>\ng = <null>\nh = -5");
}

TEST(DataParser, RewritesTheExifSection) {
  Dictionary properties = {{"{Exif}", Dictionary{{"ISOSpeedRatings", Array{25}},
                                                 {"ExposureTime", 0.25},
                                                 {"FNumber", 1.8},
                                                 {"Flash", 16},
                                                 {"FlashPixVersion", Array{1, 0}},
                                                 {"LensModel", "back camera"},
                                                 {"SubjectDistance", 4.5},
                                                 {"Nested", Dictionary{{"a", Array{1}}}}}}};
  EXPECT_EQ(report(properties), R"(

{Exif} =
{
  ExposureTime = 1/4s (0.25)
  Flash = Flash did not fire, compulsory flash mode (16)
  FlashPixVersion = [1, 0]
  FNumber = f/1.8
  ISOSpeedRatings = [25]
  LensModel = back camera
  Nested = {
    a = (
        1
    );
}
  SubjectDistance = 4.5
})");
  const Dictionary rewritten = {
      {"ISOSpeedRatings", "[25]"},   {"ExposureTime", "1/4s (0.25)"},
      {"FNumber", "f/1.8"},          {"Flash", "Flash did not fire, compulsory flash mode (16)"},
      {"FlashPixVersion", "[1, 0]"}, {"LensModel", "back camera"},
      {"SubjectDistance", 4.5},      {"Nested", Dictionary{{"a", Array{1}}}}};
  EXPECT_EQ(properties, (Dictionary{{"{Exif}", rewritten}}));
}

TEST(DataParser, PrintsEmptySections) {
  EXPECT_EQ(report({{"{Exif}", Dictionary{}},
                    {"{GIF}", Dictionary{}},
                    {"{GPS}", Dictionary{}},
                    {"{TIFF}", Dictionary{}}}),
            "\n\n{Exif} =\n{\n}\n\n{GIF} = \n{\n}\n\n{GPS} =\n{\n}\n\n{TIFF} =\n{\n}");
}

TEST(DataParser, LeavesTheCoordinatesUntouchedWithoutBoth) {
  std::optional<std::string> coordinates = "before";
  Dictionary properties = {{"{GPS}", Dictionary{{"Latitude", 48.85}, {"LatitudeRef", "N"}}}};
  DataParser::parseDataToString(properties, coordinates);
  EXPECT_EQ(coordinates, "before");
}

TEST(DataParser, SortsByTheGivenComparison) {
  Dictionary properties = {{"a", 1}, {"b", 2}, {"{Exif}", Dictionary{{"c", 3}, {"d", 4}}}};
  std::optional<std::string> coordinates;
  EXPECT_EQ(DataParser::parseDataToString(
                properties, coordinates, [](auto left, auto right) { return right.compare(left); }),
            "\nb = 2\na = 1\n\n{Exif} =\n{\n  d = 4\n  c = 3\n}");
}

TEST(DataParser, ReportsAHundredThousandProperties) {
  Dictionary exif;
  Dictionary other;
  for (int index = 0; index < 50000; ++index) {
    const std::string key = "Key" + model::paddedIntegerText(index, 6);
    exif.emplace(key, index);
    other.emplace(key, 0.5 + index);
  }
  Dictionary properties = {{"{Exif}", exif}, {"{Other}", other}};
  const std::string text = report(properties);
  EXPECT_TRUE(text.ends_with("\n  Key049999 = \"49999.5\";\n}")) << text.substr(text.size() - 80);
}

// How often a report compares keys that the dictionary holds the other way round.
long comparisonsOf(int keys) {
  Dictionary exif;
  for (int index = 0; index < keys; ++index) exif.emplace(model::paddedIntegerText(index, 6), 1);
  Dictionary properties = {{"{Exif}", exif}};
  std::optional<std::string> coordinates;
  long comparisons = 0;
  DataParser::parseDataToString(properties, coordinates, [&](auto left, auto right) {
    ++comparisons;
    return right.compare(left);
  });
  return comparisons;
}

TEST(DataParser, ComparesLittleMoreThanTwiceAsOftenForTwiceTheKeys) {
  const long comparisons = comparisonsOf(5000);
  EXPECT_GE(comparisons, 4999);
  EXPECT_LT(comparisonsOf(10'000), comparisons * 5 / 2);
}

TEST(DataParser, HasNothingToSayOfAnAbsentVideo) {
  Dictionary unused = {{"a", 1}};
  std::optional<std::string> coordinates = "before";
  EXPECT_EQ(DataParser::parseAVURLAsset(nullptr, unused, coordinates), "");
  EXPECT_EQ(coordinates, "before");
}

TEST(DataParser, LeavesTheMiddleArgumentOfAVideoAlone) {
  model::MediaAsset asset;
  asset.commonMetadata = {{"location", "+48.8577+002.2950+035.000/"}};
  Dictionary unused = {{"a", 1}};
  std::optional<std::string> coordinates;
  EXPECT_EQ(DataParser::parseAVURLAsset(&asset, unused, coordinates),
            "latitude = +48.8577\nlongitude = +002.2950\naltitude = +035.000\n");
  EXPECT_EQ(coordinates, "+48.8577,+002.2950");
  EXPECT_EQ(unused, (Dictionary{{"a", 1}}));
}

}  // namespace
}  // namespace lumifact
