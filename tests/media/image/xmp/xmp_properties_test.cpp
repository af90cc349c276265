// SPDX-License-Identifier: MIT
#include "media/image/xmp/xmp_properties.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "media/image/blocks/limits.h"
#include "tests/media/image/xmp/xmp_elements.h"

namespace media::image {
namespace {

using model::Dictionary;
using model::Value;

TEST(XmpProperties, propertiesStandInForTagsOfExif) {
  struct Case {
    const char* property;
    std::string content;
    const char* section;
    const char* key;
    Value expected;
    std::string ownProperty;  // goes before, wherever it stands
    Value ownValue;
  };
  const Case cases[] = {
      {"dc:creator", list("Seq", {"Ada", "Bob"}), "{TIFF}", "Artist", "Ada; Bob",
       element("tiff:Artist", "Eve"), "Eve"},
      {"dc:description", list("Alt", {"Boats"}), "{TIFF}", "ImageDescription", "Boats",
       element("tiff:ImageDescription", "Ships"), "Ships"},
      {"dc:rights", "Ada", "{TIFF}", "Copyright", "Ada", element("tiff:Copyright", "Eve"), "Eve"},
      {"photoshop:DateCreated", "2012-08-08T11:52:11+02:00", "{Exif}", "DateTimeOriginal",
       "2012:08:08 11:52:11", element("exif:DateTimeOriginal", "2011-01-01T00:00:00"),
       "2011:01:01 00:00:00"},
      {"xmp:CreateDate", "2012-08-08T11:52", "{Exif}", "DateTimeDigitized", "2012:08:08 11:52:00",
       element("exif:DateTimeDigitized", "2011-01-01T00:00:00"), "2011:01:01 00:00:00"},
      {"xmp:CreatorTool", "12.4", "{TIFF}", "Software", "12.4", element("tiff:Software", "Editor"),
       "Editor"},
      {"xmp:ModifyDate", "2012-08-08T11:52:11Z", "{TIFF}", "DateTime", "2012:08:08 11:52:11",
       element("tiff:DateTime", "2011-01-01T00:00:00"), "2011:01:01 00:00:00"},
  };
  for (const Case& each : cases) {
    const std::string property = element(each.property, each.content);
    const auto shown = [&](const Dictionary& properties) -> Value {
      const Value* value = entry(properties, each.section, each.key);
      return value ? *value : Value();
    };
    EXPECT_EQ(shown(readElements(property)), each.expected) << each.property;
    EXPECT_EQ(shown(readElements(property + each.ownProperty)), each.ownValue) << each.property;
    Dictionary properties = {{each.section, Dictionary{{each.key, "of the block"}}}};
    readXmpPacket(viewOf(xmpPacket(property)), properties);
    EXPECT_EQ(shown(properties), "of the block") << each.property;
  }
}

TEST(XmpProperties, theOffsetFromUtcIsThatOfTheTimeTaken) {
  const std::string taken = element("photoshop:DateCreated", "2012-08-08T11:52:11+02:00");
  EXPECT_EQ(*entry(readElements(taken), "{Exif}", "OffsetTimeOriginal"), "+0200");
  Dictionary properties = {{"{Exif}", Dictionary{{"DateTimeOriginal", "2011:01:01 00:00:00"}}}};
  readXmpPacket(viewOf(xmpPacket(taken)), properties);
  EXPECT_FALSE(entry(properties, "{Exif}", "OffsetTimeOriginal"));
}

// How many dictionaries are inside each other, the value's own included.
std::size_t depthOf(const Value& value) {
  std::size_t deepest = 0;
  if (const Dictionary* fields = value.asDictionary()) {
    for (const auto& [key, field] : *fields) deepest = std::max(deepest, 1 + depthOf(field));
  }
  return deepest;
}

TEST(XmpProperties, extensionsNestedAThousandDeepAreCutOff) {
  std::string opening;
  std::string closing;
  for (int depth = 0; depth < 1000; ++depth) {
    opening += "<Iptc4xmpExt:Inner><Iptc4xmpExt:Name>x</Iptc4xmpExt:Name>";
    closing += "</Iptc4xmpExt:Inner>";
  }
  const Dictionary properties = readElements(opening + closing);
  const Value* inner = entry(properties, "{IPTC}", "Inner");
  ASSERT_TRUE(inner);
  EXPECT_LE(depthOf(*inner), limits.xmpDepth);
  EXPECT_EQ(inner->asDictionary()->at("Name"), "x");
}

}  // namespace
}  // namespace media::image
