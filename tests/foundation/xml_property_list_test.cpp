// SPDX-License-Identifier: MIT
#include "foundation/property_lists/xml_property_list.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "model/description.h"
#include "tests/foundation/raw_binary_list.h"

namespace foundation {
namespace {

using model::Array;
using model::Data;
using model::Date;
using model::Dictionary;
using model::Value;

const std::string prologue =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
    "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n";

std::string document(std::string_view element) {
  return prologue + "<plist version=\"1.0\">\n" + std::string(element) + "\n</plist>\n";
}

model::Result<Value> parse(const std::string& text) {
  return parseXmlPropertyList(viewOf(text));
}

TEST(XmlPropertyListTest, readsEveryKindOfElement) {
  const struct {
    std::string_view element;
    Value expected;
  } cases[] = {
      {"<true/>", true},
      {"<false/>", false},
      {"<true></true>", true},
      {"<integer>72</integer>", 72},
      {"<integer> -5\n</integer>", -5},
      {"<integer>+5</integer>", 5},
      {"<integer>0x1F</integer>", 31},
      {"<integer>-9223372036854775808</integer>", std::numeric_limits<std::int64_t>::min()},
      {"<integer>9223372036854775807</integer>", std::numeric_limits<std::int64_t>::max()},
      {"<integer>9223372036854775808</integer>", std::uint64_t{1} << 63},
      {"<integer>18446744073709551615</integer>", std::numeric_limits<std::uint64_t>::max()},
      {"<integer>0xFFFFFFFFFFFFFFFF</integer>", std::numeric_limits<std::uint64_t>::max()},
      {"<real>72</real>", 72.0},
      {"<real>0.1</real>", 0.1},
      {"<real>+1.5e3</real>", 1500.0},
      {"<real>-0.0</real>", -0.0},
      {"<real>1e999</real>", std::numeric_limits<double>::infinity()},
      {"<real>+infinity</real>", std::numeric_limits<double>::infinity()},
      {"<real>-infinity</real>", -std::numeric_limits<double>::infinity()},
      {"<real>inf</real>", std::numeric_limits<double>::infinity()},
      {"<string>text</string>", "text"},
      {"<string></string>", ""},
      {"<string/>", ""},
      {"<string>  </string>", "  "},
      {"<string> a &amp; b &lt;c&gt; &#233; </string>", " a & b <c> \xC3\xA9 "},
      {"<string>a<!-- note -->b</string>", "ab"},
      {"<string>a <![CDATA[<b> & ]]>c</string>", "a <b> & c"},
      {"<string>one\r\ntwo</string>", "one\ntwo"},
      {"<string>&unknown;</string>", "&unknown;"},
      {"<date>2018-09-30T12:03:11Z</date>", Date{1538308991}},
      {"<date>1969-12-31T23:59:59Z</date>", Date{-1}},
      {"<data></data>", Data{}},
      {"<data>\n\tyv4=\n</data>", Data{0xCA, 0xFE}},
      {"<data>y v\r\n4 =</data>", Data{0xCA, 0xFE}},
      {"<array/>", Array{}},
      {"<dict/>", Dictionary{}},
      {"<array>\n <true/>\n <!-- note --> <array><string>x</string></array></array>",
       Array{true, Array{"x"}}},
      {"<dict><key>a</key><integer>1</integer> <key>b c</key> <dict/> </dict>",
       Dictionary{{"a", 1}, {"b c", Dictionary{}}}},
      {"<dict><key>a</key><integer>1</integer><key>a</key><integer>2</integer></dict>",
       Dictionary{{"a", 2}}},
      {"<dict><key/><true/></dict>", Dictionary{{"", true}}},
  };
  for (const auto& row : cases) {
    const auto parsed = parse(document(row.element));
    ASSERT_TRUE(parsed) << row.element << ": " << parsed.error().reason;
    EXPECT_EQ(*parsed, row.expected) << row.element << ": " << model::valueText(*parsed);
  }
  const auto nan = parse(document("<real>nan</real>"));
  ASSERT_TRUE(nan);
  EXPECT_TRUE(std::isnan(*nan->asReal()));
}

TEST(XmlPropertyListTest, refusesDamagedLists) {
  for (const std::string_view element : {"",
                                         "text",
                                         "<null/>",
                                         "<key>a</key>",
                                         "<integer></integer>",
                                         "<integer>1.5</integer>",
                                         "<integer>12 34</integer>",
                                         "<integer>--1</integer>",
                                         "<integer>0x</integer>",
                                         "<integer>18446744073709551616</integer>",
                                         "<integer>-9223372036854775809</integer>",
                                         "<integer>99999999999999999999999</integer>",
                                         "<real></real>",
                                         "<real>1.5x</real>",
                                         "<real>++1</real>",
                                         "<real>+-1</real>",
                                         "<real>text</real>",
                                         "<date>2018-09-30</date>",
                                         "<date>2018-09-30 12:03:11Z</date>",
                                         "<date>2018-13-30T12:03:11Z</date>",
                                         "<date>2018-00-30T12:03:11Z</date>",
                                         "<date>2018-09-3xT12:03:11Z</date>",
                                         "<data>yv4</data>",
                                         "<data>y*v4</data>",
                                         "<string>a<true/></string>",
                                         "<array>text</array>",
                                         "<array><![CDATA[x]]></array>",
                                         "<array><true/>",
                                         "<dict><true/></dict>",
                                         "<dict><key>a</key></dict>",
                                         "<dict><key>a</key><key>b</key></dict>",
                                         "<dict><key>a</key><true/><true/></dict>",
                                         "<dict>text<key>a</key><true/></dict>",
                                         "<dict><key>a<b/></key><true/></dict>"}) {
    EXPECT_FALSE(parse(document(element))) << element;
  }
}

TEST(XmlPropertyListTest, refusesWhatIsNoPropertyList) {
  for (const std::string_view text : {"", "text", "<html/>", "<dict/>", "\xFF\xD8\xFF\xE0 JFIF",
                                      "<?xml version=\"1.0\"?>", "{ old = style; }"}) {
    const auto parsed = parse(std::string(text));
    ASSERT_FALSE(parsed) << text;
    EXPECT_EQ(parsed.error().reason, "no property list") << text;
  }
}

TEST(XmlPropertyListTest, readsOtherEncodings) {
  EXPECT_EQ(*parse("\xEF\xBB\xBF<plist><string>\xC3\xA9</string></plist>"), Value("\xC3\xA9"));
  EXPECT_EQ(*parse("<?xml version='1.0' encoding='ISO-8859-1'?><plist><string>\xE9</string>"
                   "</plist>"),
            Value("\xC3\xA9"));
  std::string wide = "\xFE\xFF";
  for (const char character : std::string_view("<plist><string>x</string></plist>")) {
    wide += '\0';
    wide += character;
  }
  EXPECT_EQ(*parse(wide), Value("x"));
}

TEST(XmlPropertyListTest, invalidUtf8IsReplaced) {
  EXPECT_EQ(*parse(document("<string>a\xFFz</string>")), Value("a\xEF\xBF\xBDz"));
}

TEST(XmlPropertyListTest, entitiesOfADocumentTypeAreNotExpanded) {
  std::string text = "<?xml version=\"1.0\"?>\n<!DOCTYPE plist [<!ENTITY a0 \"boom\">";
  for (int level = 1; level < 40; ++level) {
    const std::string below = "&a" + std::to_string(level - 1) + ";";
    text.append("<!ENTITY a").append(std::to_string(level)).append(" \"");
    text.append(below).append(below).append("\">");
  }
  text += "<!ENTITY file SYSTEM \"file:///etc/passwd\">]>";
  const auto parsed =
      parse(text + "<plist><array><string>&a39;</string><string>&file;</string></array></plist>");
  ASSERT_TRUE(parsed) << parsed.error().reason;
  EXPECT_EQ(*parsed, (Value(Array{"&a39;", "&file;"})));
}

std::string nestedArrays(int count) {
  std::string text = "<plist>";
  for (int level = 0; level < count; ++level) text += "<array>";
  for (int level = 0; level < count; ++level) text += "</array>";
  return text + "</plist>";
}

TEST(XmlPropertyListTest, nestingIsReadUpToItsLimit) {
  EXPECT_TRUE(parse(nestedArrays(model::maximumNesting)));
  EXPECT_FALSE(parse(nestedArrays(model::maximumNesting + 1)));
}

TEST(XmlPropertyListTest, aHundredThousandNestedArraysAreRefused) {
  const auto whole = parse(nestedArrays(100'000));
  ASSERT_FALSE(whole);
  EXPECT_EQ(whole.error().reason, "property list too large or nested too deep");
  const std::string cut = nestedArrays(100'000).substr(0, 700'007);
  EXPECT_FALSE(parse(cut));
}

TEST(XmlPropertyListTest, moreValuesThanTheBudgetAreRefused) {
  const auto list = [](int count) {
    std::string text = "<plist><array>";
    for (int index = 0; index < count; ++index) text += "<true/>";
    return text + "</array></plist>";
  };
  EXPECT_TRUE(parse(list(maximumPropertyListNodes - 1)));
  EXPECT_FALSE(parse(list(maximumPropertyListNodes)));
}

TEST(XmlPropertyListTest, writesThePlatformsLayout) {
  const Value tree = Dictionary{
      {"array", Array{1, Dictionary{{"k", Value(true)}}, Array{}}},
      {"data", Data(60, 0)},
      {"date", Date{1538308991.75}},
      {"empty", ""},
      {"flags", Array{true, false}},
      {"none", Dictionary{}},
      {"real", 72.0},
      {"text & <more>", "a & <b>\n\"c\" 'd' \r"},
  };
  const auto written = xmlPropertyList(tree);
  ASSERT_TRUE(written);
  EXPECT_EQ(*written, prologue +
                          "<plist version=\"1.0\">\n"
                          "<dict>\n"
                          "\t<key>array</key>\n"
                          "\t<array>\n"
                          "\t\t<integer>1</integer>\n"
                          "\t\t<dict>\n"
                          "\t\t\t<key>k</key>\n"
                          "\t\t\t<true/>\n"
                          "\t\t</dict>\n"
                          "\t\t<array/>\n"
                          "\t</array>\n"
                          "\t<key>data</key>\n"
                          "\t<data>\n"
                          "\t" +
                          std::string(68, 'A') +
                          "\n"
                          "\t" +
                          std::string(12, 'A') +
                          "\n"
                          "\t</data>\n"
                          "\t<key>date</key>\n"
                          "\t<date>2018-09-30T12:03:11Z</date>\n"
                          "\t<key>empty</key>\n"
                          "\t<string></string>\n"
                          "\t<key>flags</key>\n"
                          "\t<array>\n"
                          "\t\t<true/>\n"
                          "\t\t<false/>\n"
                          "\t</array>\n"
                          "\t<key>none</key>\n"
                          "\t<dict/>\n"
                          "\t<key>real</key>\n"
                          "\t<real>72</real>\n"
                          "\t<key>text &amp; &lt;more&gt;</key>\n"
                          "\t<string>a &amp; &lt;b&gt;\n\"c\" 'd' &#13;</string>\n"
                          "</dict>\n"
                          "</plist>\n");
}

TEST(XmlPropertyListTest, writesRealsThatAreNoNumbers) {
  const double infinity = std::numeric_limits<double>::infinity();
  const auto written = xmlPropertyList(
      Value(Array{infinity, -infinity, std::numeric_limits<double>::quiet_NaN(), 1e-7}));
  ASSERT_TRUE(written);
  EXPECT_NE(written->find("<real>+infinity</real>\n\t<real>-infinity</real>\n\t<real>nan</real>\n"
                          "\t<real>1e-07</real>"),
            std::string::npos)
      << *written;
}

TEST(XmlPropertyListTest, deepDataKeepsItsLinesReadable) {
  Value tree = Data(30, 0xFF);
  for (int level = 0; level < 12; ++level) tree = Array{tree};
  const auto written = xmlPropertyList(tree);
  ASSERT_TRUE(written);
  EXPECT_NE(written->find("\n" + std::string(8, '\t') + std::string(12, '/') + "\n"),
            std::string::npos)
      << *written;
  EXPECT_EQ(*parse(*written), tree);
}

TEST(XmlPropertyListTest, whatXmlCannotHoldIsRefused) {
  EXPECT_FALSE(xmlPropertyList(Value()));
  EXPECT_FALSE(xmlPropertyList(Value(Array{Value()})));
  EXPECT_FALSE(xmlPropertyList(Value("a\x1B[31m")));
  EXPECT_FALSE(xmlPropertyList(Value(std::string(1, '\0'))));
  EXPECT_FALSE(xmlPropertyList(Value(Dictionary{{"a\x01", 1}})));
}

}  // namespace
}  // namespace foundation
