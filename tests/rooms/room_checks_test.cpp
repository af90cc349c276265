// SPDX-License-Identifier: MIT
//
// Small made trees with one offence each, beside the nearest thing that is none.
#include "tests/rooms/room_checks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace rooms {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string including(const std::string& path) {
  return "// SPDX-License-Identifier: MIT\n#include \"" + path + "\"\n";
}

std::string repeated(const std::string& line, int times) {
  std::string text;
  for (int count = 0; count < times; ++count) text += line;
  return text;
}

const auto made = parseRooms(
    "room low low\nroom middle middle\nmay-include low high/types.h\n"
    "room high high\nmay-include low middle\nfolders base parts .\n");

TEST(RoomChecks, FindAnIncludeThatTheRoomsLineDoesNotAllow) {
  const SourceTree tree = {{"low/a.h", including("middle/b.h")}, {"middle/b.h", ""}};
  EXPECT_THAT(forbiddenIncludes(tree, made),
              ElementsAre("low/a.h includes middle/b.h: low may include nothing"));
}

TEST(RoomChecks, NameWhatTheRoomMayInclude) {
  const SourceTree tree = {{"middle/b.cpp", including("high/a.h")}, {"high/a.h", ""}};
  EXPECT_THAT(forbiddenIncludes(tree, made),
              ElementsAre("middle/b.cpp includes high/a.h: middle may include low high/types.h"));
}

TEST(RoomChecks, AllowFoldersAndFilesOfTheLineAndTheRoomItself) {
  const SourceTree tree = {{"low/a.h", ""},
                           {"high/types.h", ""},
                           {"middle/b.h", including("low/a.h")},
                           {"middle/c.h", including("high/types.h") + including("middle/b.h")}};
  EXPECT_THAT(forbiddenIncludes(tree, made), IsEmpty());
}

TEST(RoomChecks, FindAnIncludeAgainstTheOrderOfFolders) {
  const SourceTree tree = {{"high/base/a.h", including("high/parts/b.h")}, {"high/parts/b.h", ""}};
  EXPECT_THAT(
      forbiddenIncludes(tree, made),
      ElementsAre("high/base/a.h includes high/parts/b.h: the order of high is base parts ."));
}

TEST(RoomChecks, FindAFolderThatTheOrderDoesNotKnow) {
  const SourceTree tree = {{"high/base/a.h", including("high/new/b.h")}, {"high/new/b.h", ""}};
  EXPECT_THAT(
      forbiddenIncludes(tree, made),
      ElementsAre("high/base/a.h includes high/new/b.h: the order of high is base parts ."));
}

TEST(RoomChecks, AllowIncludesAlongTheOrderOfFolders) {
  const SourceTree tree = {{"high/base/a.h", ""},
                           {"high/parts/b.h", including("high/base/a.h")},
                           {"high/c.h", including("high/parts/b.h")}};
  EXPECT_THAT(forbiddenIncludes(tree, made), IsEmpty());
}

TEST(RoomChecks, LeaveFoldersWithoutAnOrderToEachOther) {
  const SourceTree tree = {{"low/base/a.h", including("low/b.h")}, {"low/b.h", ""}};
  EXPECT_THAT(forbiddenIncludes(tree, made), IsEmpty());
}

TEST(RoomChecks, LeaveAloneWhatIsNoRoom) {
  const SourceTree tree = {{"tests/a_test.cpp", including("high/b.h")}, {"high/b.h", ""}};
  EXPECT_THAT(forbiddenIncludes(tree, made), IsEmpty());
}

TEST(RoomChecks, FindACircleOfFiles) {
  const SourceTree tree = {
      {"a.h", including("b.h")}, {"b.h", ""}, {"b.cpp", including("b.h") + including("a.h")}};
  EXPECT_THAT(circlesOfFiles(tree),
              ElementsAre("a includes itself by way of b", "b includes itself by way of a"));
}

TEST(RoomChecks, TakeAHeaderAndItsSourceAsOneFile) {
  const SourceTree tree = {
      {"a.h", ""}, {"a.cpp", including("a.h") + including("b.h")}, {"b.h", ""}};
  EXPECT_THAT(circlesOfFiles(tree), IsEmpty());
}

TEST(RoomChecks, FindTheNameOfTheProduct) {
  const SourceTree tree = {{"desktop/a.h", "class ACMEView;"},
                           {"media/acme.h", ""},
                           {"apps/photohost/CMakeLists.txt", "acme::views"},
                           {"apps/acme/main.cpp", "Acme"},
                           {"foundation/b.h", "academy"}};
  EXPECT_THAT(
      namesOfProduct(tree, "acme"),
      ElementsAre("apps/photohost/CMakeLists.txt names the product, which its room does not know",
                  "desktop/a.h names the product, which its room does not know",
                  "media/acme.h names the product, which its room does not know"));
}

TEST(RoomChecks, FindAFileThatTheReadmeDoesNotName) {
  const SourceTree tree = {{"a/README.md", "| `named` | the file beside unnamed |"},
                           {"a/named.h", ""},
                           {"a/unnamed.h", ""}};
  EXPECT_THAT(filesWithoutWords(tree), ElementsAre("a/README.md does not name a/unnamed.h"));
}

TEST(RoomChecks, FindASourceThatNoReadmeIsThereFor) {
  const SourceTree tree = {{"README.md", "`b`"}, {"a/b.h", ""}, {"a/b.txt", ""}};
  EXPECT_THAT(filesWithoutWords(tree), ElementsAre("no README.md above a/b.h but the root's"));
}

TEST(RoomChecks, AskTheNearestReadme) {
  const SourceTree tree = {{"a/README.md", "`far`"},
                           {"a/b/README.md", "`near`"},
                           {"a/b/c/far.h", ""},
                           {"a/b/c/near.h", ""}};
  EXPECT_THAT(filesWithoutWords(tree), ElementsAre("a/b/README.md does not name a/b/c/far.h"));
}

TEST(RoomChecks, KnowFilesByNamesPathsAndPatterns) {
  const SourceTree tree = {{"a/README.md", "`one, two.h`, `b/three`\nand `*_test.cpp`; `*`"},
                           {"a/CMakeLists.txt", ""},
                           {"a/one.cpp", ""},
                           {"a/two.h", ""},
                           {"a/b/three.h", ""},
                           {"a/b/four_test.cpp", ""},
                           {"a/five.txt", ""}};
  EXPECT_THAT(filesWithoutWords(tree), ElementsAre("a/README.md does not name a/five.txt"));
}

TEST(RoomChecks, FindAFolderOfTooManyFiles) {
  SourceTree tree = {{"a/CMakeLists.txt", ""}};
  for (int count = 0; count < 30; ++count) tree["a/" + std::to_string(count) + ".cpp"] = "";
  EXPECT_THAT(fullFolders(tree), IsEmpty());
  tree["a/more.h"] = "";
  EXPECT_THAT(fullFolders(tree), ElementsAre("a holds more than 30 headers and sources"));
}

TEST(RoomChecks, FindALongSourceThatDoesNotSayHowItWorks) {
  const std::string code = repeated("int x();\n", 150);
  const SourceTree tree = {{"a/long.cpp", "// SPDX-License-Identifier: MIT\n// Alone.\n" + code},
                           {"a/late.cpp", "int y();\n// How it\n// works.\n" + code},
                           {"a/short.cpp", code},
                           {"a/long.h", "\n" + code},
                           {"tests/a_test.cpp", "\n" + code}};
  EXPECT_THAT(longSourcesWithoutWords(tree),
              ElementsAre("a/late.cpp is long and does not open with how it works",
                          "a/long.cpp is long and does not open with how it works"));
}

TEST(RoomChecks, FindTheOpeningBeforeOrBehindTheIncludes) {
  const std::string code = "\n" + repeated("int x();\n", 150);
  const std::string words = "//\n// How it\n// works.\n";
  const SourceTree tree = {{"a/one.cpp", "// SPDX\n" + words + including("a/b.h") + code},
                           {"a/two.cpp", "// SPDX\n" + including("a/b.h") + words + code}};
  EXPECT_THAT(longSourcesWithoutWords(tree), IsEmpty());
}

}  // namespace
}  // namespace rooms
