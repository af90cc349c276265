// SPDX-License-Identifier: MIT
//
// The application by itself, and with libraries that are not as they should be.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>

#include "tests/apps/photohost/host_run.h"

namespace photohost {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

TEST(Application, WithoutTheExtensionThereIsNothingOfIt) {
  Host host;
  host.withoutExtensions();
  host.run(
      "open item 1\nwait 1\nlong-press 187 333\nwait 1\ndump photo.json\n"
      "back\nwait 1\nlong-press item 1\nwait 1\ndump grid.json\n");
  for (const char* name : {"photo", "grid"}) {
    const Json screen = host.dumped(name);
    EXPECT_EQ(customButtons(screen), 0);
    EXPECT_EQ(screen["alert"], Json());
    for (const char* word : {"umifact", "LXView", "LFP"})
      EXPECT_EQ(screen.dump().find(word), std::string::npos) << name << " " << word;
  }
}

// The platform and its host know of no extension, not even by name.
TEST(Application, ItsSourcesDoNotNameTheExtension) {
  int files = 0;
  for (const char* room : {"desktop", "apps/photohost"})
    for (const auto& entry : fs::recursive_directory_iterator(std::string(SOURCE_FOLDER) + room)) {
      if (!entry.is_regular_file()) continue;
      ++files;
      std::string text = support::contentsOf(entry.path());
      std::ranges::transform(text, text.begin(),
                             [](unsigned char letter) { return std::tolower(letter); });
      for (const char* word : {"lumifact", "lf742", "korvu", "lxview", "lfpresenter"})
        EXPECT_EQ(text.find(word), std::string::npos) << entry.path() << " " << word;
    }
  EXPECT_GT(files, 100);
}

TEST(Application, ShowsPhotosAlbumsAndOneByOne) {
  Host host;
  host.run(
      "dump photos.json\nopen albums\nwait 1\nexpect \"All Photos\"\nexpect \"City\"\n"
      "open album City\nwait 1\ndump album.json\nopen item 0\nwait 1\ndump photo.json\n"
      "back\nwait 1\nexpect \"City\"\n");
  EXPECT_FALSE(nodesOfClass(host.dumped("photos"), "PUPhotosGridCell").empty());
  EXPECT_EQ(nodesOfClass(host.dumped("album"), "PUPhotosGridCell").size(), 6U);
  EXPECT_EQ(nodesOfClass(host.dumped("photo"), "PUTilingView").size(), 1U);
}

TEST(Application, SaysNothingWhereAllIsWell) {
  Host host;
  const HostResult result =
      host.run("open item 4\nwait 1\nlong-press 187 300\nwait 1\nscreenshot page.png\n");
  EXPECT_EQ(result.messages, "");
}

// A swipe ends where its own finger is, not where another command left one before.
TEST(Application, ASwipeIsEndedByAnyCommandThatLiftsTheFinger) {
  Host host;
  host.run(
      "open album City\nwait 1\ntap \"Select\"\nwait 1\n"
      "touch-down 235 110\ntouch-up\nwait 1\nexpect \"1 Photo Selected\"\n"
      "touch-down 235 110\ntouch-up\nwait 1\nexpect \"Select Items\"\n"
      "swipe-begin 0\ntouch-up\nwait 1\nexpect \"1 Photo Selected\"\n"
      "swipe-move 2\nwait 1\nexpect \"1 Photo Selected\"\n");
}

TEST(Application, TakesItsScreenshotAtTheScale) {
  Host host;
  EXPECT_EQ(host.tryToRun("screenshot screen.png\n", "--scale 1").status, 0);
  std::ifstream file(host.file("screen.png"), std::ios::binary);
  std::string head(24, '\0');
  file.read(head.data(), 24);
  EXPECT_EQ(head.substr(16, 8), std::string("\0\0\x01\x77\0\0\x02\x9B", 8)) << "375 x 667";
}

TEST(Application, AFullDiskFailsAScriptAndLeavesWhatWasThere) {
  Host host;
  host.run("screenshot screen.png\ndump screen.json\n");
  for (const char* name : {"screen.png", "screen.json"}) {
    const std::string before = support::contentsOf(host.file(name));
    const std::string command = std::string(name).ends_with("png") ? "screenshot " : "dump ";
    const HostResult result = Host().fileLimit(1).tryToRun(command + host.file(name) + "\n");
    EXPECT_EQ(result.status, 1) << name;
    EXPECT_THAT(result.messages, HasSubstr(std::string(name) + ": File too large\n"));
    EXPECT_EQ(support::contentsOf(host.file(name)), before);
  }
  for (const auto& entry : fs::directory_iterator(fs::path(host.file("screen.png")).parent_path()))
    EXPECT_FALSE(entry.path().filename().string().starts_with(".screen")) << entry.path();
}

// What names, paths, options and scripts may do to the terminal that shows them.
TEST(Application, ItsMessagesCommandNoTerminal) {
  const std::string hostile = "x\x1b[2J\x07\u202e\u2028\u200e\xff";
  const std::string safe = "x\\u001b[2J\\u0007\\u202e\\u2028\\u200e\\xff";
  Host host;
  const std::string extensions = host.file("extensions");
  fs::create_directory(extensions);
  std::ofstream(extensions + "/" + hostile + ".plist") << "no list";
  host.library("/nowhere/" + hostile).withoutExtensions();
  const HostResult result =
      host.tryToRun("open album \"" + hostile + "\"\n", "--extensions '" + extensions + "'");
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.messages, HasSubstr("photohost: /nowhere/" + safe + ": No such file"));
  EXPECT_THAT(result.messages, HasSubstr("/extensions/" + safe + ".plist: "));
  EXPECT_THAT(result.messages, HasSubstr("script:1: "));
  const HostResult usage = host.tryToRun("", "'--" + hostile + "'");
  EXPECT_EQ(usage.status, 2);
  EXPECT_THAT(usage.messages, HasSubstr(safe));
  for (const std::string& messages : {result.messages, usage.messages})
    for (const char* raw : {"\x1b", "\x07", "\u202e", "\u2028", "\u200e", "\xff"})
      EXPECT_EQ(messages.find(raw), std::string::npos) << messages;
}

TEST(Application, AScriptEndsAtItsFirstError) {
  Host host;
  const HostResult result = host.tryToRun("expect \"no such text\"\nscreenshot late.png\n");
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.messages, HasSubstr("script:1: \"no such text\" is not on screen"));
  EXPECT_FALSE(fs::exists(host.file("late.png")));
}

TEST(Application, ALibraryThatIsMissingIsTold) {
  Host host;
  host.library("/does/not/exist");
  const HostResult result = host.tryToRun("dump screen.json\nopen albums\nwait 1\n");
  EXPECT_EQ(result.status, 0) << result.messages;
  EXPECT_THAT(result.messages, HasSubstr("/does/not/exist: No such file or directory"));
  EXPECT_THAT(host.dumped("screen").dump(), HasSubstr("No such file or directory"));
}

TEST(Application, AnEmptyLibraryIsUsable) {
  Host host;
  fs::create_directory(host.file("empty"));
  host.library(host.file("empty"));
  host.run("dump screen.json\nopen albums\nwait 1\nopen photos\nwait 1\n");
  EXPECT_NE(host.tryToRun("open item 0\n").status, 0);
}

TEST(Application, BrokenFilesAreShownAsPlaceholders) {
  Host host;
  const std::string folder = host.file("broken");
  fs::create_directory(folder);
  for (int number = 0; number < 10'000; ++number)
    std::ofstream(folder + "/" + std::to_string(number) + (number % 2 ? ".jpg" : ".heic"))
        << "this is no picture " << number;
  std::ofstream(folder + "/bad \xFF name.jpg") << "nor this";
  fs::create_directory_symlink(folder, folder + "/loop");
  host.library(folder);
  host.run(
      "dump grid.json\nscroll -3000\nwait 1\nopen item 3\nwait 1\ndump photo.json\n"
      "screenshot photo.png\n");
  EXPECT_FALSE(nodesOfClass(host.dumped("grid"), "PUPhotosGridCell").empty());
}

TEST(Application, TheToolStartsIt) {
  EXPECT_TRUE(toolBrowses(sampleLibrary()));
}

TEST(Application, WrongUsageIsTold) {
  Host host;
  for (const char* options : {"--size 10x10", "--size wide", "--scale 9", "--nonsense"})
    EXPECT_EQ(host.tryToRun("", options).status, 2) << options;
}

}  // namespace
}  // namespace photohost
