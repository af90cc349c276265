// SPDX-License-Identifier: MIT
#include "lumifact/assets/file_names.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unicode/regex.h>

#include <random>
#include <vector>

namespace lumifact {
namespace {

TEST(ShownPathTest, aPathInTheCameraRollIsShownRelativeToIt) {
  EXPECT_EQ(shownPath("/var/mobile/Media/DCIM/100APPLE/IMG_0001.JPG"), "100APPLE/IMG_0001.JPG");
}

TEST(ShownPathTest, aUrlInTheCameraRollIsShownRelativeToIt) {
  EXPECT_EQ(shownPath("file:///var/mobile/Media/DCIM/100APPLE/IMG_0001.JPG"),
            "100APPLE/IMG_0001.JPG");
}

TEST(ShownPathTest, aUrlKeepsItsPercentEscapes) {
  EXPECT_EQ(shownPath("file:///var/mobile/Media/DCIM/100APPLE/My%20Photo.JPG"),
            "100APPLE/My%20Photo.JPG");
  EXPECT_EQ(shownPath("file:///tmp/a%20b.png"), "/tmp/a%20b.png");
}

TEST(ShownPathTest, everythingElseKeepsItsFullForm) {
  for (const std::string_view text :
       {"/var/mobile/Media/PhotoData/a.JPG", "/home/me/IMG_0001.JPG", "IMG_0001.JPG", "",
        "http://example.org/a.jpg", "FILE:///a.jpg", "/var/mobile/Media/DCIM", "x/file:///a.jpg",
        "x/var/mobile/Media/DCIM/a.JPG"}) {
    EXPECT_EQ(shownPath(text), text);
  }
}

TEST(ShownPathTest, eachFrontIsDroppedOnce) {
  EXPECT_EQ(shownPath("file://file:///a"), "file:///a");
  EXPECT_EQ(shownPath("/var/mobile/Media/DCIM//var/mobile/Media/DCIM/a"),
            "/var/mobile/Media/DCIM/a");
  EXPECT_EQ(shownPath("/var/mobile/Media/DCIM/file:///a"), "file:///a");
}

TEST(FileNameTest, isTheLastComponent) {
  const struct {
    std::string_view path;
    std::string_view name;
  } cases[] = {
      {"100APPLE/IMG_0001.JPG", "IMG_0001.JPG"},
      {"/a/b.png", "b.png"},
      {"b.png", "b.png"},
      {"/a/b/", "b"},
      {"a//", "a"},
      {"/", "/"},
      {"///", "/"},
      {"", ""},
  };
  for (const auto& row : cases) EXPECT_EQ(fileName(row.path), row.name) << row.path;
}

TEST(LargePreviewNameTest, anAbsoluteUrlIsRewrittenAtItsEnd) {
  EXPECT_EQ(largePreviewName("file:///var/mobile/Media/PhotoData/My%20IMG_0001medium.jpg"),
            "file:///var/mobile/Media/PhotoData/My%20IMG_0001large.jpg");
}

TEST(LargePreviewNameTest, aPathIsRewrittenAtItsEnd) {
  EXPECT_EQ(largePreviewName("/var/mobile/Media/PhotoData/My IMG_0001medium.JPG"),
            "/var/mobile/Media/PhotoData/My IMG_0001large.JPG");
}

TEST(LargePreviewNameTest, rewritesAsARegularExpressionWould) {
  const struct {
    std::string_view name;
    std::string_view expected;
  } cases[] = {
      {"IMG_0001medium.JPG", "IMG_0001large.JPG"},
      {"IMG_0001full.JPG", "IMG_0001large.JPG"},
      {"IMG_0001.JPG", "IMG_0001large.JPG"},
      {"x.jpg", "xlarge.jpg"},
      {"IMG_0001MeDiUm.jPg", "IMG_0001large.jPg"},
      {"IMG_0001FULL.Jpg", "IMG_0001large.Jpg"},
      {"mediumfull.JPG", "mediumlarge.JPG"},
      {"fullmedium.JPG", "fulllarge.JPG"},
      {".JPG", "large.JPG"},
      {"medium.JPG", "large.JPG"},
      // The dot matches any character.
      {"xJPG", "largexJPG"},
      {"fullxJPG", "largexJPG"},
      {"fullJPG", "fullargelJPG"},
      {"mediumJPG", "mediulargemJPG"},
      {"a\xC3\xA9JPG", "alarge\xC3\xA9JPG"},
      {"full\xF0\x9F\x93\xB7jpg", "large\xF0\x9F\x93\xB7jpg"},
      {"\xE2\x82\xACjpg", "large\xE2\x82\xACjpg"},
      // Before a final line terminator.
      {"a.JPG\n", "alarge.JPG\n"},
      {"afull.JPG\r\n", "alarge.JPG\r\n"},
      {"a.JPG\xE2\x80\xA9", "alarge.JPG\xE2\x80\xA9"},
      {"a.JPG.JPG", "a.JPGlarge.JPG"},
      // No match.
      {"", ""},
      {"JPG", "JPG"},
      {"IMG_0001.JPEG", "IMG_0001.JPEG"},
      {"IMG_0001.HEIC", "IMG_0001.HEIC"},
      {"a.JPG ", "a.JPG "},
      {"a.JPG\n\n", "a.JPG\n\n"},
      {"a\nJPG", "a\nJPG"},
      {"a\xE2\x80\xA8JPG", "a\xE2\x80\xA8JPG"},
  };
  for (const auto& row : cases) EXPECT_EQ(largePreviewName(row.name), row.expected) << row.name;
}

TEST(LargePreviewNameTest, anInvalidByteIsOneCharacter) {
  EXPECT_EQ(largePreviewName("a\xFFJPG"), "alarge\xFFJPG");
  EXPECT_EQ(largePreviewName("full\xA9JPG"), "large\xA9JPG");
}

std::string asIcuRewrites(const std::string& name) {
  UErrorCode status = U_ZERO_ERROR;
  icu::RegexMatcher matcher(u"(full|medium)?(.JPG)$", UREGEX_CASE_INSENSITIVE, status);
  const icu::UnicodeString input = icu::UnicodeString::fromUTF8(name);
  matcher.reset(input);
  std::string result;
  matcher.replaceAll(u"large$2", status).toUTF8String(result);
  EXPECT_TRUE(U_SUCCESS(status));
  return result;
}

TEST(LargePreviewNameTest, agreesWithIcuOnRandomNames) {
  // Letters whose case folding is unusual stand beside the pieces of the pattern.
  const std::vector<std::string> pieces = {"full",
                                           "FULL",
                                           "Full",
                                           "medium",
                                           "MEDIUM",
                                           "mediuM",
                                           ".JPG",
                                           ".jpg",
                                           "JPG",
                                           "jpg",
                                           "J",
                                           "PG",
                                           ".",
                                           "m",
                                           "l",
                                           "x",
                                           "/",
                                           "\n",
                                           "\r",
                                           "\r\n",
                                           "\v",
                                           "\f",
                                           "\t",
                                           "\xC2\x85",
                                           "\xE2\x80\xA8",
                                           "\xE2\x80\xA9",
                                           "\xC3\xA9",
                                           "\xE2\x82\xAC",
                                           "large",
                                           "$2",
                                           "\xF0\x9F\x93\xB7",
                                           "\xC7\xB0",
                                           "\xC4\xB0",
                                           "\xC4\xB1",
                                           "\xC5\xBF",
                                           "\xEF\xAC\x82"};
  const auto seed = std::random_device{}();
  SCOPED_TRACE(testing::Message() << "seed " << seed);
  std::mt19937 random(seed);
  int rewritten = 0;
  for (int round = 0; round < 20000; ++round) {
    std::string name;
    for (auto count = random() % 7; count > 0; --count) name += pieces[random() % pieces.size()];
    if (random() % 2 == 0) name += pieces[6 + random() % 4];
    if (random() % 4 == 0) name += pieces[17 + random() % 10];
    const std::string expected = asIcuRewrites(name);
    ASSERT_EQ(largePreviewName(name), expected) << testing::PrintToString(name);
    if (expected != name) ++rewritten;
  }
  EXPECT_GT(rewritten, 4000);
}

TEST(LargePreviewNameTest, aNameOfAMegabyteIsNoBurden) {
  std::string name(1 << 20, 'f');
  name += "full.JPG";
  EXPECT_EQ(largePreviewName(name), std::string(1 << 20, 'f') + "large.JPG");
}

// Which paths were asked for, and which exist.
struct Disk {
  std::vector<std::string> existing;
  std::vector<std::string> asked;

  std::optional<std::string> find(const AssetFiles& files) {
    return existingFile(files, [this](const std::string& path) {
      asked.push_back(path);
      return std::ranges::find(existing, path) != existing.end();
    });
  }
};

AssetFiles still() {
  return {.main = "/m.HEIC",
          .fullsizeImage = "/f.JPG",
          .largePreview = "/l.JPG",
          .mediumPreview = "/pmedium.JPG",
          .isVideo = false};
}

TEST(ExistingFileTest, theMainFileComesFirst) {
  Disk disk{.existing = {"/m.HEIC", "/f.JPG"}, .asked = {}};
  EXPECT_EQ(disk.find(still()), "/m.HEIC");
  EXPECT_THAT(disk.asked, testing::ElementsAre("/m.HEIC"));
}

TEST(ExistingFileTest, aStillTriesItsPreviewsInOrder) {
  Disk disk;
  EXPECT_EQ(disk.find(still()), std::nullopt);
  EXPECT_THAT(disk.asked,
              testing::ElementsAre("/m.HEIC", "/f.JPG", "/l.JPG", "/pmedium.JPG", "/plarge.JPG"));
  EXPECT_EQ((Disk{.existing = {"/pmedium.JPG", "/l.JPG"}, .asked = {}}.find(still())), "/l.JPG");
  EXPECT_EQ((Disk{.existing = {"/plarge.JPG", "/pmedium.JPG"}, .asked = {}}.find(still())),
            "/pmedium.JPG");
}

TEST(ExistingFileTest, aStillFallsBackToTheLargeNameOfItsMediumPreview) {
  Disk disk{.existing = {"/plarge.JPG"}, .asked = {}};
  EXPECT_EQ(disk.find(still()), "/plarge.JPG");
}

TEST(ExistingFileTest, aVideoTriesItsMainFileOnly) {
  AssetFiles video = still();
  video.isVideo = true;
  Disk disk{.existing = {"/f.JPG", "/l.JPG", "/pmedium.JPG"}, .asked = {}};
  EXPECT_EQ(disk.find(video), std::nullopt);
  EXPECT_THAT(disk.asked, testing::ElementsAre("/m.HEIC"));
}

TEST(ExistingFileTest, filesThatTheAssetLacksAreNotAskedFor) {
  Disk disk{.existing = {"/l.JPG"}, .asked = {}};
  EXPECT_EQ(disk.find({.main = {},
                       .fullsizeImage = {},
                       .largePreview = "/l.JPG",
                       .mediumPreview = {},
                       .isVideo = false}),
            "/l.JPG");
  EXPECT_EQ(disk.find({}), std::nullopt);
  EXPECT_THAT(disk.asked, testing::ElementsAre("/l.JPG"));
}

}  // namespace
}  // namespace lumifact
