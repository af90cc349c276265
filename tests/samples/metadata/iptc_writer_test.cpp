// SPDX-License-Identifier: MIT
#include "samples/metadata/iptc_writer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "samples/metadata/xmp_writer.h"

namespace samples {
namespace {

constexpr Place place{.city = "Reykjavík", .province = "P", .country = "Iceland", .utcOffset = 60};
constexpr Photo photo{.place = &place,
                      .taken = {2019, 2, 3, 4, 5, 6},
                      .title = "A & B",
                      .keywords = "one,two",
                      .namesPlace = true};

std::string textOf(const Bytes& bytes) {
  return {bytes.begin(), bytes.end()};
}

TEST(IptcWriter, PutsLengthsBeforeTexts) {
  const std::string records = textOf(iptcRecords(photo));
  using std::string_literals::operator""s;
  for (const std::string& record :
       {"\x1C\x01\x5A\0\3\x1B%G"s, "\x1C\2\5\0\5A & B"s, "\x1C\2\x19\0\3one"s, "\x1C\2\x19\0\3two"s,
        "\x1C\2\x5A\0\x0AReykjav\xC3\xADk"s,
        "\x1C\2\x3C\0\x0B"
        "040506+0100"s})
    EXPECT_THAT(records, testing::HasSubstr(record));
}

TEST(IptcWriter, LeavesOutWhatIsNotGiven) {
  EXPECT_EQ(textOf(iptcRecords(photo)).find("\x1C\x02\x50"), std::string::npos);  // no author
}

TEST(IptcWriter, WrapsRecordsInAnEvenResource) {
  const Bytes resource = photoshopResources({1, 2, 3});
  EXPECT_EQ(resource, (Bytes{'8', 'B', 'I', 'M', 4, 4, 0, 0, 0, 0, 0, 3, 1, 2, 3, 0}));
}

TEST(XmpWriter, EscapesTextsAndListsKeywords) {
  const std::string packet = xmpPacket(photo);
  EXPECT_THAT(packet, testing::HasSubstr("photoshop:Headline=\"A &amp; B\""));
  EXPECT_THAT(packet, testing::HasSubstr("photoshop:City=\"Reykjav\xC3\xADk\""));
  EXPECT_THAT(packet, testing::HasSubstr("<rdf:li>one</rdf:li><rdf:li>two</rdf:li>"));
}

}  // namespace
}  // namespace samples
