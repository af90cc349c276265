// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "media/image/blocks/limits.h"
#include "media/image/blocks/metadata_blocks.h"
#include "media/image/blocks/shortfall.h"
#include "tests/media/image/container_builder.h"
#include "tests/media/image/xmp/xmp_elements.h"

namespace media::image {
namespace {

using namespace std::string_literals;
using model::Array;
using model::Dictionary;
using model::Value;

TEST(XmpPacket, propertiesAreShownUnderTheirKeys) {
  struct Case {
    const char* property;
    std::string content;
    const char* section;
    const char* key;
    Value expected;
  };
  const std::string language =
      "<rdf:Alt><rdf:li xml:lang='de'>Titel</rdf:li>"
      "<rdf:li xml:lang='x-default'>Title</rdf:li></rdf:Alt>";
  const Case cases[] = {
      {"dc:creator", list("Seq", {"Ada", "Bob"}), "{IPTC}", "Byline", Array{"Ada", "Bob"}},
      {"dc:creator", "Ada", "{IPTC}", "Byline", Array{"Ada"}},
      {"dc:description", language, "{IPTC}", "Caption/Abstract", "Title"},
      {"dc:rights", language, "{IPTC}", "CopyrightNotice", "Title"},
      {"dc:subject", list("Bag", {"a", "b"}), "{IPTC}", "Keywords", Array{"a", "b"}},
      {"dc:title", language, "{IPTC}", "ObjectName", "Title"},
      {"photoshop:AuthorsPosition", "Editor", "{IPTC}", "BylineTitle", Array{"Editor"}},
      {"photoshop:City", "Kingston", "{IPTC}", "City", "Kingston"},
      {"photoshop:Country", "Canada", "{IPTC}", "Country/PrimaryLocationName", "Canada"},
      {"photoshop:State", "Ontario", "{IPTC}", "Province/State", "Ontario"},
      {"photoshop:DateCreated", "2012-08-08", "{IPTC}", "DateCreated", "20120808"},
      {"photoshop:DateCreated", "2012-08-08T11:52:11", "{IPTC}", "TimeCreated", "115211"},
      {"photoshop:DateCreated", "2012-08-08T11:52:11.5+02:00", "{IPTC}", "TimeCreated",
       "115211+0200"},
      {"photoshop:DateCreated", "2012-08-08T11:52Z", "{IPTC}", "TimeCreated", "115200+0000"},
      {"photoshop:SupplementalCategories", list("Bag", {"x"}), "{IPTC}", "SupplementalCategory",
       Array{"x"}},
      {"Iptc4xmpCore:Location", "Harbour", "{IPTC}", "SubLocation", "Harbour"},
      {"Iptc4xmpCore:CountryCode", "CAN", "{IPTC}", "Country/PrimaryLocationCode", "CAN"},
      {"Iptc4xmpCore:Scene", list("Bag", {"011200"}), "{IPTC}", "Scene", Array{"011200"}},
      {"Iptc4xmpCore:CreatorContactInfo",
       "<rdf:Description><Iptc4xmpCore:CiAdrCity>Kingston</Iptc4xmpCore:CiAdrCity>"
       "</rdf:Description>",
       "{IPTC}", "CreatorContactInfo", Dictionary{{"CiAdrCity", "Kingston"}}},
      {"Iptc4xmpExt:LocationShown", "<rdf:Bag><rdf:li Iptc4xmpExt:City='Kingston'/></rdf:Bag>",
       "{IPTC}", "LocationShown", Array{Dictionary{{"City", "Kingston"}}}},
      {"Iptc4xmpExt:Event", language, "{IPTC}", "Event", "Title"},
      {"Iptc4xmpExt:PersonInImage", "Ada", "{IPTC}", "PersonInImage", Array{"Ada"}},
      {"Iptc4xmpExt:MaxAvailWidth", "4032", "{IPTC}", "MaxAvailWidth", "4032"},
      {"Iptc4xmpExt:ArtworkOrObject",
       "<rdf:Bag><rdf:li rdf:parseType='Resource'><Iptc4xmpExt:AOContentDescription>" + language +
           "</Iptc4xmpExt:AOContentDescription><Iptc4xmpExt:AOCreator>" +
           list("Seq", {"Ada", "Bob"}) + "</Iptc4xmpExt:AOCreator></rdf:li></rdf:Bag>",
       "{IPTC}", "ArtworkOrObject",
       Array{Dictionary{{"AOContentDescription", "Title"}, {"AOCreator", Array{"Ada", "Bob"}}}}},
      {"xmp:Rating", "4", "{IPTC}", "StarRating", 4},
      {"xmp:Rating", "-1", "{IPTC}", "StarRating", -1},
      {"xmpRights:UsageTerms", language, "{IPTC}", "UsageTerms", "Title"},
      {"aux:Lens", "EF 50mm", "{ExifAux}", "LensModel", "EF 50mm"},
      {"aux:LensInfo", "24/1 120/1 4/1 4/1", "{ExifAux}", "LensInfo", Array{24.0, 120.0, 4.0, 4.0}},
      {"aux:LensInfo", "18/1 55/1 0/0 0/0", "{ExifAux}", "LensInfo", Array{18.0, 55.0, 0.0, 0.0}},
      {"aux:LensID", "170", "{ExifAux}", "LensID", 170},
      {"aux:SerialNumber", "6001440", "{ExifAux}", "SerialNumber", "6001440"},
      {"aux:ImageNumber", "8458", "{ExifAux}", "ImageNumber", 8458},
      {"aux:FlashCompensation", "-1/3", "{ExifAux}", "FlashCompensation", -1.0 / 3},
      {"exif:ExposureTime", "1/60", "{Exif}", "ExposureTime", 1.0 / 60},
      {"exif:FNumber", "2.8", "{Exif}", "FNumber", 2.8},
      {"exif:ISOSpeedRatings", list("Seq", {"100"}), "{Exif}", "ISOSpeedRatings", Array{100}},
      {"exif:ExifVersion", "0221", "{Exif}", "ExifVersion", Array{2, 2, 1}},
      {"exif:ExifVersion", "0230", "{Exif}", "ExifVersion", Array{2, 3}},
      {"exif:FocalLengthIn35mmFilm", "28", "{Exif}", "FocalLenIn35mmFilm", 28},
      {"exif:UserComment", language, "{Exif}", "UserComment", "Title"},
      {"exif:DateTimeOriginal", "2018-09-30T14:03:11.25+02:00", "{Exif}", "DateTimeOriginal",
       "2018:09:30 14:03:11"},
      {"exif:Flash",
       "<rdf:Description exif:Fired='True' exif:Return='3' exif:Mode='1' exif:Function='False'"
       " exif:RedEyeMode='True'/>",
       "{Exif}", "Flash", 1 + (3 << 1) + (1 << 3) + (1 << 6)},
      {"exif:Flash", "<rdf:Description exif:Fired='True' exif:Return='1e300' exif:Mode='-1e300'/>",
       "{Exif}", "Flash", 1},
      {"exif:Flash", "16", "{Exif}", "Flash", 16},
      {"exifEX:LensModel", "50mm", "{Exif}", "LensModel", "50mm"},
      {"exifEX:LensSpecification", list("Seq", {"24/1", "70/1", "28/10", "28/10"}), "{Exif}",
       "LensSpecification", Array{24.0, 70.0, 2.8, 2.8}},
      {"exif:GPSLatitude", "41,24.5N", "{GPS}", "Latitude", 41 + 24.5 / 60},
      {"exif:GPSLatitude", "41,24.5S", "{GPS}", "LatitudeRef", "S"},
      {"exif:GPSLongitude", "12,30,36W", "{GPS}", "Longitude", 12 + 30.0 / 60 + 36.0 / 3600},
      {"exif:GPSLongitude", "12,30,36W", "{GPS}", "LongitudeRef", "W"},
      {"exif:GPSAltitude", "1234/10", "{GPS}", "Altitude", 123.4},
      {"exif:GPSAltitudeRef", "1", "{GPS}", "AltitudeRef", 1},
      {"exif:GPSTimeStamp", "2018-09-30T12:03:11Z", "{GPS}", "TimeStamp", "12:03:11"},
      {"exif:GPSTimeStamp", "2018-09-30T12:03:11Z", "{GPS}", "DateStamp", "2018:09:30"},
      {"exif:GPSVersionID", "2.3.0.0", "{GPS}", "GPSVersion", Array{2, 3, 0, 0}},
      {"tiff:Make", "Maker", "{TIFF}", "Make", "Maker"},
      {"tiff:Orientation", "6", "{TIFF}", "Orientation", 6},
      {"tiff:Orientation", "6", "", "Orientation", 6},
      {"tiff:XResolution", "72/1", "{TIFF}", "XResolution", 72.0},
  };
  for (const Case& each : cases) {
    const Dictionary properties = readElements(element(each.property, each.content));
    const Value* value = entry(properties, each.section, each.key);
    ASSERT_TRUE(value) << each.property << " " << each.content;
    EXPECT_EQ(*value, each.expected) << each.property << " " << each.content;
  }
}

TEST(XmpPacket, valuesThatDoNotReadAreLeftOut) {
  const std::string elements[] = {
      element("exif:FNumber", "28/0"),
      element("exif:FNumber", "0/0"),
      element("exifEX:LensSpecification", list("Seq", {"24/1", "70/1", "28/0", "0/0"})),
      element("exif:FNumber", "fast"),
      element("exif:FNumber", "nan"),
      element("exif:ExifVersion", "2.2"),
      element("exif:DateTimeOriginal", "2018-09"),
      element("exif:DateTimeOriginal", "yesterday"),
      element("exif:GPSLatitude", "41,24.5"),
      element("exif:GPSLatitude", "N"),
      element("exif:GPSLatitude", "1,2,3,4N"),
      element("exif:GPSLatitude", "-1,2N"),
      element("tiff:Orientation", "9"),
      element("xmp:Rating", "1e300"),
      element("photoshop:City", ""),
      element("dc:subject", list("Bag", {})),
      element("photoshop:Other", "x"),
      element("photoshop:DateCreated", "2012"),
      element("xmp:ModifyDate", "2012-08-08"),
      element("Iptc4xmpExt:", "x"),
      element("Iptc4xmpExt:Ev\xFF", "x"),
      element("Iptc4xmpExt:Event", ""),
      element("Iptc4xmpExt:LocationShown", list("Bag", {"", ""})),
      element("Iptc4xmpExt:ArtworkOrObject", list("Bag", {"<Iptc4xmpExt:AOTitle/>"})),
      element("unknown:City", "x"),
      element("City", "x"),
      element("mwg-rs:Regions", ""),
  };
  for (const std::string& each : elements) EXPECT_TRUE(readElements(each).empty()) << each;
}

TEST(XmpPacket, attributesAndElementsMeanTheSame) {
  EXPECT_EQ(
      readPacket("<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
                 "<rdf:Description xmlns:p='http://ns.adobe.com/photoshop/1.0/' p:City='Kingston'/>"
                 "</rdf:RDF>"),
      readElements(element("photoshop:City", "Kingston")));
}

TEST(XmpPacket, namespacesCountAndPrefixesDoNot) {
  const auto packet = [](std::string_view uri) {
    return "<r:RDF xmlns:r='http://www.w3.org/1999/02/22-rdf-syntax-ns#'><r:Description>"
           "<exif:City xmlns:exif='" +
           std::string(uri) +
           "'>Kingston</exif:City>"
           "</r:Description></r:RDF>";
  };
  EXPECT_EQ(*entry(readPacket(packet("http://ns.adobe.com/photoshop/1.0/")), "{IPTC}", "City"),
            "Kingston");
  EXPECT_TRUE(readPacket(packet("http://example.com/")).empty());
}

TEST(XmpPacket, aValueMayHaveQualifiers) {
  EXPECT_EQ(*entry(readElements("<photoshop:City rdf:parseType='Resource'>"
                                "<rdf:value>Kingston</rdf:value><x:y>z</x:y></photoshop:City>"),
                   "{IPTC}", "City"),
            "Kingston");
}

TEST(XmpPacket, faceRegionsAreShown) {
  const std::string area =
      "<mwg-rs:Area stArea:x='0.5' stArea:y='0.25' stArea:w='0.125' stArea:h='0.1'"
      " stArea:unit='normalized'/>";
  const std::string face =
      "<mwg-rs:Extensions apple-fi:AngleInfoYaw='315'"
      " apple-fi:AngleInfoRoll='270' apple-fi:ConfidenceLevel='980'"
      " apple-fi:FaceID='3' apple-fi:Timestamp='2147483647'/>";
  const Dictionary properties = readElements(
      "<mwg-rs:Regions rdf:parseType='Resource'>"
      "<mwg-rs:AppliedToDimensions stDim:w='4032' stDim:h='3024' stDim:unit='pixel'/>"
      "<mwg-rs:RegionList><rdf:Bag><rdf:li rdf:parseType='Resource'>" +
      area + face +
      "<mwg-rs:Type>Face</mwg-rs:Type></rdf:li>"
      "<rdf:li><rdf:Description mwg-rs:Type='Face' mwg-rs:Name='Ada'>" +
      area + "</rdf:Description></rdf:li></rdf:Bag></mwg-rs:RegionList></mwg-rs:Regions>");
  const Dictionary first = {{"AngleInfoRoll", 270},
                            {"AngleInfoYaw", 315},
                            {"ConfidenceLevel", 980},
                            {"FaceID", 3},
                            {"Height", 0.1},
                            {"Timestamp", 2147483647},
                            {"Type", "Face"},
                            {"Width", 0.125},
                            {"X", 0.5},
                            {"Y", 0.25}};
  const Dictionary second = {{"Height", 0.1},  {"Name", "Ada"}, {"Type", "Face"},
                             {"Width", 0.125}, {"X", 0.5},      {"Y", 0.25}};
  EXPECT_EQ(*entry(properties, "{ExifAux}", "Regions"),
            Value(Dictionary{{"HeightAppliedTo", 3024},
                             {"WidthAppliedTo", 4032},
                             {"RegionList", Array{first, second}}}));
}

TEST(XmpPacket, whatIsThereStays) {
  Dictionary properties = {{"Orientation", 1}, {"{TIFF}", Dictionary{{"Make", "there"}}}};
  const std::string packet =
      xmpPacket(element("tiff:Make", "new") + element("tiff:Orientation", "6"));
  readXmpPacket(viewOf(packet), properties);
  EXPECT_EQ(*entry(properties, "{TIFF}", "Make"), "there");
  EXPECT_EQ(*entry(properties, "", "Orientation"), 1);
}

TEST(XmpPacket, anyUnicodeEncodingIsRead) {
  const std::string packet = xmpPacket(element("photoshop:City", "Kingston"));
  const auto wide = [&](bool isBig, std::string_view mark) {
    std::string bytes(mark);
    for (const char character : packet) {
      bytes += isBig ? "\0"s + character : std::string(1, character) + "\0"s;
    }
    return bytes;
  };
  for (const std::string& encoded :
       {packet, "\xEF\xBB\xBF" + packet, wide(true, "\xFE\xFF"), wide(false, "\xFF\xFE"),
        wide(true, ""), wide(false, ""), packet + std::string(100, '\0'),
        "<?xpacket begin='\xEF\xBB\xBF' id='W5M0MpCehiHzreSzNTczkc9d'?>" + packet +
            std::string(2000, ' ') + "<?xpacket end='w'?>"}) {
    const Dictionary properties = readPacket(encoded);
    ASSERT_TRUE(entry(properties, "{IPTC}", "City"));
    EXPECT_EQ(*entry(properties, "{IPTC}", "City"), "Kingston");
  }
}

TEST(XmpPacket, invalidUtf8ReadsAsLatin1) {
  EXPECT_EQ(*entry(readElements(element("photoshop:City", "Z\xFCrich")), "{IPTC}", "City"),
            "Zürich");
}

TEST(XmpPacket, aPacketCutAnywhereIsReadAsFarAsItGoes) {
  const std::string packet =
      xmpPacket(element("photoshop:City", "Kingston") + element("photoshop:State", "Ontario"));
  for (std::size_t length = 0; length <= packet.size(); ++length) {
    const Dictionary properties = readPacket(packet.substr(0, length));
    EXPECT_LE(properties.size(), 1U) << length;
  }
  const Dictionary cut = readPacket(packet.substr(0, packet.find("<photoshop:State>")));
  EXPECT_EQ(*entry(cut, "{IPTC}", "City"), "Kingston");
}

TEST(XmpPacket, entitiesAreNotExpanded) {
  const std::string packet =
      "<!DOCTYPE x [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '&a;&a;&a;&a;&a;&a;'>]>" +
      xmpPacket(element("photoshop:City", "&b;&amp;"));
  const Dictionary properties = readPacket(packet);
  ASSERT_TRUE(entry(properties, "{IPTC}", "City"));
  EXPECT_EQ(*entry(properties, "{IPTC}", "City"), "&b;&");
}

TEST(XmpPacket, nestingThousandsDeepIsCutOff) {
  std::string opening;
  std::string closing;
  for (int depth = 0; depth < 40'000; ++depth) {
    opening += "<photoshop:City>";
    closing += "</photoshop:City>";
  }
  EXPECT_TRUE(readElements(opening + "x" + closing).empty());
  EXPECT_TRUE(readPacket(opening).empty());
  std::string lists;
  for (int depth = 0; depth < 20'000; ++depth) lists += "<rdf:Bag><rdf:li>";
  EXPECT_TRUE(readElements("<dc:subject>" + lists).empty());
}

TEST(XmpPacket, packetsOfTooManyElementsAreLeftOut) {
  std::string many;
  for (std::size_t index = 0; index <= limits.xmpElements; ++index) many += "<a/>";
  Dictionary properties = readElements(element("photoshop:City", "Kingston") + many);
  EXPECT_EQ(takeShortfall(properties), droppedMetadata);
  EXPECT_TRUE(properties.empty());
  std::string fewer;
  for (std::size_t index = 0; index < limits.xmpElements / 2; ++index) fewer += "<a/>";
  EXPECT_FALSE(readElements(element("photoshop:City", "Kingston") + fewer).empty());
}

TEST(XmpPacket, listsAreBounded) {
  const std::vector<std::string> many(limits.valuesPerField + 100, "k");
  const Dictionary properties = readElements(element("dc:subject", list("Bag", many)));
  EXPECT_EQ(entry(properties, "{IPTC}", "Keywords")->asArray()->size(), limits.valuesPerField);
}

TEST(XmpPacket, manyNamespacesAndAttributesCostLittle) {
  std::string declarations;
  for (int index = 0; index < 10'000; ++index) {
    declarations += " xmlns:n" + std::to_string(index) + "='u'";
  }
  std::string attributes;
  for (int index = 0; index < 80'000; ++index) {
    attributes += " zz:a" + std::to_string(index) + "='v'";
  }
  const std::string packet = "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'" +
                             declarations + "><rdf:Description" + attributes + "/></rdf:RDF>";
  EXPECT_TRUE(readPacket(packet).empty());
}

}  // namespace
}  // namespace media::image
