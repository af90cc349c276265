// SPDX-License-Identifier: MIT
#include "media/movie/metadata/common_metadata.h"

#include <gtest/gtest.h>

#include "media/movie/metadata/common_keys.h"
#include "media/movie/metadata/metadata_value.h"
#include "tests/media/movie/reading.h"

namespace media::movie {
namespace {

using model::Value;
using Facts = std::vector<std::pair<std::string, Value>>;

Facts factsOf(const std::vector<model::MetadataItem>& items) {
  Facts facts;
  for (const auto& item : items)
    facts.emplace_back(item.commonKey.value_or("?"), item.value.value_or(Value()));
  return facts;
}

Facts factsIn(std::initializer_list<Bytes> boxes) {
  const Reading reading =
      readBytes(joined({fileType("qt  "), box("moov", {movieHeader(600, 600), joined(boxes)})}));
  return factsOf(reading.asset.commonMetadata);
}

Bytes iTunesMetadata(const Bytes& items) {
  return fullBox(
      "meta", 0,
      joined({fullBox("hdlr", 0, Writer().u32(0).text("mdirappl").zeros(9)), box("ilst", items)}));
}

Bytes threeGppText(std::string_view type, std::string_view text) {
  return fullBox(type, 0, Writer().u16(0x15C7).text(text).u8(0));
}

TEST(CommonMetadata, KnowsEveryKeyOfItsTable) {
  const struct {
    std::string_view fact;
    std::string_view quickTime;
    std::string_view userData;
    std::string_view iTunes;
    std::string_view threeGpp;
  } rows[] = {
      {"title", "title", "\xa9nam", "\xa9nam", "titl"},
      {"title", "displayname", "", "", ""},
      {"description", "description",
       "\xa9"
       "des",
       "", "dscp"},
      {"description", "", "\xa9inf", "", ""},
      {"creationDate", "creationdate",
       "\xa9"
       "day",
       "", "yrrc"},
      {"make", "make", "\xa9mak", "", ""},
      {"model", "model", "\xa9mod", "", ""},
      {"software", "software", "\xa9swr", "\xa9too", ""},
      {"location", "location.ISO6709", "\xa9xyz", "", "loci"},
      {"artist", "artist",
       "\xa9"
       "ART",
       "\xa9"
       "ART",
       "perf"},
      {"author", "author",
       "\xa9"
       "aut",
       "", "auth"},
      {"albumName", "album",
       "\xa9"
       "alb",
       "\xa9"
       "alb",
       "albm"},
      {"copyrights", "copyright",
       "\xa9"
       "cpy",
       "cprt", "cprt"},
      {"publisher", "publisher", "\xa9pub", "", ""},
      {"artwork", "artwork", "", "covr", ""},
      {"identifier", "content.identifier", "", "", ""},
  };
  const auto nameIn = [](KeySpace space, std::string_view key) {
    const auto found = findCommonKey(space, key);
    return found ? found->name : "";
  };
  for (const auto& row : rows) {
    const std::string key = "com.apple.quicktime." + std::string(row.quickTime);
    const std::tuple<KeySpace, std::string_view, bool> keys[] = {
        {KeySpace::quickTimeMetadata, key, !row.quickTime.empty()},
        {KeySpace::quickTimeUserData, row.userData, !row.userData.empty()},
        {KeySpace::iTunes, row.iTunes, !row.iTunes.empty()},
        {KeySpace::threeGpp, row.threeGpp, !row.threeGpp.empty()},
    };
    for (const auto& [space, name, isKnown] : keys)
      EXPECT_EQ(nameIn(space, name), isKnown ? row.fact : "") << name;
  }
  EXPECT_EQ(nameIn(KeySpace::iTunes, "desc"), "");
  EXPECT_EQ(nameIn(KeySpace::quickTimeMetadata, "com.apple.quicktime.live-photo.auto"), "");
}

TEST(CommonMetadata, SortsByCommonKeyAndLeavesOutTheRest) {
  EXPECT_EQ(factsIn({quickTimeMetadata({{"com.apple.quicktime.software", "12.4"},
                                        {"com.apple.quicktime.unheard.of", "x"},
                                        {"com.apple.quicktime.make", "Apple"},
                                        {"com.apple.quicktime.creationdate", "now"}})}),
            (Facts{{"creationDate", "now"}, {"make", "Apple"}, {"software", "12.4"}}));
}

TEST(CommonMetadata, TakesOneFactFromTheBestPlace) {
  const Bytes quickTime = quickTimeMetadata({{"com.apple.quicktime.displayname", "display"},
                                             {"com.apple.quicktime.title", "keyed"},
                                             {"com.apple.quicktime.title", "again"}});
  const Bytes iTunes = iTunesMetadata(box("\xa9nam", dataBox(1, Writer().text("listed"))));
  const Bytes text = userDataText("\xa9nam", 0x15C7, "user");
  const Bytes mobile = threeGppText("titl", "mobile");
  EXPECT_EQ(factsIn({box("udta", {mobile, text, iTunes}), quickTime}), (Facts{{"title", "keyed"}}));
  EXPECT_EQ(factsIn({box("udta", {mobile, text, iTunes})}), (Facts{{"title", "listed"}}));
  EXPECT_EQ(factsIn({box("udta", {mobile, text})}), (Facts{{"title", "user"}}));
  EXPECT_EQ(factsIn({box("udta", {mobile})}), (Facts{{"title", "mobile"}}));
}

TEST(CommonMetadata, ReadsTracksToo) {
  const model::Track track =
      readTrackOf({.entry = videoEntry({}),
                   .more = box("udta", {userDataText("\xa9nam", 0x15C7, "The picture")})});
  EXPECT_EQ(factsOf(track.commonMetadata), (Facts{{"title", "The picture"}}));
  const model::Track keyed =
      readTrackOf({.entry = videoEntry({}),
                   .more = quickTimeMetadata({{"com.apple.quicktime.make", "Apple"}})});
  EXPECT_EQ(factsOf(keyed.commonMetadata), (Facts{{"make", "Apple"}}));
}

TEST(CommonMetadata, ReadsMetadataInsideUserData) {
  EXPECT_EQ(factsIn({box("udta", {quickTimeMetadata({{"com.apple.quicktime.model", "X"}})})}),
            (Facts{{"model", "X"}}));
}

TEST(CommonMetadata, LeavesOutWhatIsTooLargeOrCut) {
  const Bytes large(70000, 'x');
  const Bytes picture(70000, 0xD8);
  const Bytes list = joined({box("\xa9nam", dataBox(1, large)), box("covr", dataBox(13, picture)),
                             box("\xa9too", {Writer().u32(900).text("data").zeros(8)})});
  EXPECT_EQ(factsIn({box("udta", {iTunesMetadata(list)})}), (Facts{{"artwork", Value(picture)}}));
}

TEST(MetadataValue, HasTheTypeThatIsStated) {
  const auto text = [](std::string_view bytes) -> Bytes { return Writer().text(bytes); };
  const struct {
    std::uint32_t type;
    Bytes bytes;
    std::optional<Value> expected;
  } cases[] = {
      {1, text("Caf\xC3\xA9"), Value("Caf\xC3\xA9")},
      {1, text("bad\xFFutf"), Value("bad\xEF\xBF\xBDutf")},
      {1, text("+48.8577+002.2950/"), Value("+48.8577+002.2950/")},
      {1, {}, std::nullopt},
      {2, {0x00, 0x41, 0x26, 0x03}, Value("A\xE2\x98\x83")},
      {2, {0xFF, 0xFE, 0x41, 0x00}, Value("A")},
      {13, {0xFF, 0xD8}, Value(model::Data{0xFF, 0xD8})},
      {0, {1, 2, 3}, Value(model::Data{1, 2, 3})},
      {21, {0xFF}, Value(-1)},
      {21, {0xFF, 0x00}, Value(-256)},
      {21, {0x00, 0x00, 0x01}, Value(1)},
      {21, {0x80, 0, 0, 0, 0, 0, 0, 0}, Value(INT64_MIN)},
      {21, Bytes(9, 1), std::nullopt},
      {22, {0xFF}, Value(255)},
      {22, {0x80, 0, 0, 0, 0, 0, 0, 0}, Value(9223372036854775808.0)},
      {23, {0x3D, 0xCC, 0xCC, 0xCD}, Value(0.1)},
      {23, {0x3D}, std::nullopt},
      {24, {0x3F, 0xB9, 0x99, 0x99, 0x99, 0x99, 0x99, 0x9A}, Value(0.1)},
      {65, {0xFE}, Value(-2)},
      {66, {0xFF, 0xFE}, Value(-2)},
      {77, {0, 0, 1, 0}, Value(256)},
  };
  for (const auto& row : cases) {
    const Bytes payload = Writer().u32(row.type).u32(0).bytes(row.bytes);
    EXPECT_EQ(typedValue(io::ByteView(payload)), row.expected)
        << row.type << " " << row.bytes.size();
  }
  EXPECT_EQ(typedValue(io::ByteView(Bytes(7, 1))), std::nullopt);
}

TEST(MetadataValue, ReadsUserDataByItsLanguage) {
  const struct {
    std::uint16_t language;
    std::string_view text;
    std::optional<Value> expected;
  } cases[] = {
      {0,
       "\x8C"
       "lbum",
       Value("\xC3\xA5lbum")},                          // English of the Macintosh: Mac OS Roman
      {0x15C7, "\xC3\xA5lbum", Value("\xC3\xA5lbum")},  // "eng": UTF-8
      {0x15C7, "\x8Clbum", Value("\xC3\xA5lbum")},      // but no valid UTF-8
      {0x55C4, std::string_view("\xFE\xFF\0A", 4), Value("A")},
      {0x15C7, "+51.4169-000.0806/", Value("+51.4169-000.0806/")},
      {0, "", std::nullopt},
  };
  for (const auto& row : cases) {
    const Bytes box = userDataText("\xa9xyz", row.language, row.text);
    EXPECT_EQ(internationalText(io::ByteView(box).from(8)), row.expected) << row.text;
  }
  const Bytes cut = Writer().u16(900).u16(0).text("as far as it goes");
  EXPECT_EQ(internationalText(io::ByteView(cut)), Value("as far as it goes"));
  EXPECT_EQ(internationalText(io::ByteView(Bytes(3, 0))), std::nullopt);
}

TEST(MetadataValue, ReadsThePlaceOfMobileMovies) {
  const auto place = [](std::string_view name, double longitude, double latitude,
                        std::string_view body) -> Bytes {
    return Writer()
        .u32(0)
        .u16(0)
        .text(name)
        .u8(0)
        .u8(0)
        .fixed(longitude)
        .fixed(latitude)
        .fixed(-12.5)
        .text(body)
        .u8(0)
        .u8(0);
  };
  const struct {
    Bytes payload;
    std::optional<Value> expected;
  } cases[] = {
      {place("", 2.295, 48.8577, "earth"), Value("+48.8577+002.2950-012.500/")},
      {place("Rio", -43.2105, -22.9519, ""), Value("-22.9519-043.2105-012.500/")},
      {place(std::string_view("\xFE\xFF\0R\0i\0o\0", 9), -43.2105, -22.9519, ""),
       Value("-22.9519-043.2105-012.500/")},
      {place("Olympus", 1, 2, "mars"), std::nullopt},
      {Writer().u32(0).u16(0).text("cut").u8(0).u8(0).u32(0), std::nullopt},
      {{}, std::nullopt},
  };
  for (const auto& row : cases)
    EXPECT_EQ(threeGppValue("loci", io::ByteView(row.payload)), row.expected);
}

TEST(MetadataValue, WritesPlacesAsPhonesDo) {
  EXPECT_EQ(iso6709Text(48.8577, 2.295, 35), "+48.8577+002.2950+035.000/");
  EXPECT_EQ(iso6709Text(-33.8568, 151.2153, -4.25), "-33.8568+151.2153-004.250/");
  EXPECT_EQ(iso6709Text(0, 0, 8848.86), "+00.0000+000.0000+8848.860/");
}

}  // namespace
}  // namespace media::movie
