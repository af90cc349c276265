// SPDX-License-Identifier: MIT
#include "lumifact/details/data_parser_class.h"

#include "lumifact/report/data_parser.h"
#include "tests/lumifact/details/fake_media.h"
#include "tests/lumifact/views/foundation_test.h"

namespace lumifact {
namespace {

using bridge::NSDictionary;
using bridge::NSMutableDictionary;
using bridge::NSString;
using bridge::Object;
using bridge::send;
using model::Dictionary;

const Dictionary photo = {
    {"ColorModel", "RGB"},
    {"Orientation", 6},
    {"PixelWidth", 4032},
    {"{Exif}", Dictionary{{"Flash", 16}, {"LensModel", "wide"}}},
    {"{GPS}",
     Dictionary{
         {"Latitude", 48.85}, {"LatitudeRef", "N"}, {"Longitude", 2.35}, {"LongitudeRef", "W"}}},
    {"{JFIF}", Dictionary{{"DensityUnit", 1}}},
    {"{TIFF}", Dictionary{{"Make", "Apple"}, {"Orientation", 3}, {"ResolutionUnit", 2}}},
};

class DataParserClassTest : public FoundationTest {
 protected:
  DataParserClassTest() { host::fakeMedia() = {}; }

  static NSString parse(id* data, id* coordinates) {
    return send<NSString, "parseDataToString:mapCoordinates:">(DataParserClass::classObject(), data,
                                                               coordinates);
  }
  static Object at(NSDictionary dictionary, const char* key) { return dictionary.at(text(key)); }
};

TEST_F(DataParserClassTest, IsFoundByItsName) {
  const Class made = DataParserClass::classObject();
  EXPECT_TRUE(made);
  EXPECT_EQ(objc_getClass("DataParser"), made);
}

TEST_F(DataParserClassTest, ReportsAsThePureParserDoes) {
  Dictionary table = photo;
  std::optional<std::string> place;
  const std::string expected = DataParser::parseDataToString(table, place);
  id data = objects(photo).get();
  id coordinates = nullptr;
  EXPECT_EQ(parse(&data, &coordinates).utf8(), expected);
  EXPECT_EQ(bridge::toValue(Object(data)), model::Value(table));
  EXPECT_EQ(NSString(coordinates).utf8(), "48.85,-2.35");
}

TEST_F(DataParserClassTest, OnlyWhatIsRewrittenIsAnotherObjectThanBefore) {
  const NSDictionary original(objects(photo).get());
  const auto changed = bridge::mutableCopy(original);
  id data = changed->get();
  id coordinates = nullptr;
  parse(&data, &coordinates);
  EXPECT_EQ(data, changed->get());
  for (const char* key : {"ColorModel", "PixelWidth", "{GPS}", "{JFIF}"})
    EXPECT_EQ(at(changed, key), at(original, key)) << key;
  for (const char* key : {"Orientation", "{TIFF}", "{Exif}"})
    EXPECT_NE(at(changed, key), at(original, key)) << key;
  EXPECT_EQ(at(NSDictionary(at(changed, "{TIFF}").get()), "Make"),
            at(NSDictionary(at(original, "{TIFF}").get()), "Make"));
  EXPECT_EQ(bridge::toValue(original), model::Value(photo));
}

TEST_F(DataParserClassTest, CoordinatesAreLeftAsTheyAreWithoutAPlace) {
  id data = objects(Dictionary{{"Depth", 8}}).get();
  id coordinates = text("untouched").get();
  EXPECT_EQ(parse(&data, &coordinates).utf8(), "\nDepth = 8");
  EXPECT_EQ(NSString(coordinates).utf8(), "untouched");
}

TEST_F(DataParserClassTest, NothingHasAnEmptyReport) {
  id data = objects(Dictionary{}).get();
  id coordinates = nullptr;
  EXPECT_EQ(parse(&data, &coordinates).utf8(), "");
  data = nullptr;
  EXPECT_EQ(parse(&data, &coordinates).utf8(), "");
  EXPECT_EQ(coordinates, nullptr);
  EXPECT_EQ(reportOfVideo({}).text.utf8(), "");
}

TEST_F(DataParserClassTest, ReportsOfVideosLeaveTheMiddleArgumentAlone) {
  host::fakeMedia().videoMetadata = {{"make", "Maker"}, {"location", "+48.8577+002.2950+035.000/"}};
  id ignored = nullptr;
  id coordinates = nullptr;
  const auto asset = bridge::AVURLAsset::withURL(bridge::NSURL::withString(text("file:///a.mov")));
  const auto report = send<NSString, "parseAVURLAsset:toDataAndString:mapCoordinates:">(
      DataParserClass::classObject(), asset, &ignored, &coordinates);
  EXPECT_EQ(report.utf8(),
            "latitude = +48.8577\nlongitude = +002.2950\naltitude = +035.000\nmake = Maker\n");
  EXPECT_EQ(NSString(coordinates).utf8(), "+48.8577,+002.2950");
  EXPECT_EQ(ignored, nullptr);
}

TEST_F(DataParserClassTest, ReportsKeepTheOrderOfThePlatform) {
  const Report report =
      reportOfImage(NSMutableDictionary(objects(Dictionary{{"b", 1}, {"A", 2}, {"_", 3}}).get()));
  EXPECT_EQ(report.text.utf8(), "\n_ = 3\nA = 2\nb = 1");
  EXPECT_FALSE(report.coordinates);
}

}  // namespace
}  // namespace lumifact
