// SPDX-License-Identifier: MIT
#include "foundation/property_lists/property_list_edit.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <thread>

#include "foundation/property_lists/property_list.h"
#include "tests/support/temporary_folder.h"

namespace foundation {
namespace {

using model::Dictionary;
using model::Value;
using support::contentsOf;
using support::TemporaryFolder;

// What the file holds, and how it is written.
PropertyList listIn(const std::string& path) {
  const auto list = readPropertyList(path);
  EXPECT_TRUE(list) << path;
  return list ? *list : PropertyList();
}

std::string listBytes(const Value& root, PropertyListFormat format) {
  const auto bytes = serializePropertyList(root, format);
  EXPECT_TRUE(bytes);
  return bytes ? *bytes : "";
}

std::function<void(Dictionary&)> setting(const std::string& key, const Value& value) {
  return [=](Dictionary& settings) { settings.insert_or_assign(key, value); };
}

void clear(Dictionary& settings) {
  settings.clear();
}

TEST(PropertyListEdit, MakesAMissingFileWithItsFolders) {
  const TemporaryFolder folder;
  const std::string path = folder.file("a/b/settings.plist");
  EXPECT_FALSE(editPropertyListFile(path, setting("fontSize", 14)));
  EXPECT_EQ(listIn(path).root, Value(Dictionary{{"fontSize", 14}}));
  EXPECT_EQ(listIn(path).format, PropertyListFormat::xml);
}

TEST(PropertyListEdit, KeepsFormatModeAndUnknownKeys) {
  for (const auto format : {PropertyListFormat::xml, PropertyListFormat::binary}) {
    const TemporaryFolder folder;
    const Dictionary before{{"theirs", model::Array{1, "x"}}, {"fontSize", 12}};
    const std::string path = folder.write("settings.plist", listBytes(before, format));
    ::chmod(path.c_str(), 0640);
    EXPECT_FALSE(editPropertyListFile(path, setting("fontSize", 14)));
    EXPECT_EQ(listIn(path).format, format);
    EXPECT_EQ(listIn(path).root,
              Value(Dictionary{{"theirs", model::Array{1, "x"}}, {"fontSize", 14}}));
    struct stat status {};
    ASSERT_EQ(::stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0640U);
  }
}

TEST(PropertyListEdit, LeavesNothingElseBehind) {
  const TemporaryFolder folder;
  EXPECT_FALSE(editPropertyListFile(folder.file("settings.plist"), setting("fontSize", 14)));
  EXPECT_FALSE(editPropertyListFile(folder.file("settings.plist"), setting("fontSize", 15)));
  int entries = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder.path())) {
    ++entries;
  }
  EXPECT_EQ(entries, 1);
}

TEST(PropertyListEdit, FollowsLinksAndKeepsThem) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.file("real"));
  std::filesystem::create_symlink("real/target.plist", folder.file("link"));
  std::filesystem::create_symlink(folder.file("link"), folder.file("outer"));
  EXPECT_FALSE(editPropertyListFile(folder.file("outer"), setting("fontSize", 14)));
  EXPECT_TRUE(std::filesystem::is_symlink(folder.file("outer")));
  EXPECT_TRUE(std::filesystem::is_symlink(folder.file("link")));
  EXPECT_EQ(listIn(folder.file("real/target.plist")).root, Value(Dictionary{{"fontSize", 14}}));
}

TEST(PropertyListEdit, LeavesAFileThatIsNoDictionaryAlone) {
  for (const std::string& bytes :
       {std::string("not a list"), std::string(), std::string("bplist00junk"),
        listBytes(model::Array{1}, PropertyListFormat::xml)}) {
    const TemporaryFolder folder;
    const std::string path = folder.write("settings.plist", bytes);
    for (const auto after : {AfterEdit::write, AfterEdit::removeIfEmpty}) {
      const auto error = editPropertyListFile(path, clear, after);
      ASSERT_TRUE(error) << bytes;
      EXPECT_TRUE(error->reason.starts_with("left as it is")) << error->reason;
      EXPECT_EQ(contentsOf(path), bytes);
    }
  }
}

TEST(PropertyListEdit, AnEmptiedFileStaysUnlessItMayGo) {
  const TemporaryFolder folder;
  const std::string path = folder.file("settings.plist");
  EXPECT_FALSE(editPropertyListFile(path, clear));
  EXPECT_FALSE(std::filesystem::exists(path)) << "nothing to take out of a missing file";
  EXPECT_FALSE(editPropertyListFile(path, setting("fontSize", 14)));
  EXPECT_FALSE(editPropertyListFile(path, clear));
  EXPECT_EQ(listIn(path).root, Value(Dictionary()));
  EXPECT_FALSE(editPropertyListFile(path, clear, AfterEdit::removeIfEmpty));
  EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(PropertyListEdit, TellsWhatTheSystemRefuses) {
  const TemporaryFolder folder;
  const auto error = editPropertyListFile(folder.path(), setting("fontSize", 14));
  ASSERT_TRUE(error);
  EXPECT_NE(error->reason.find("Is a directory"), std::string::npos) << error->reason;
  folder.write("file", "x");
  EXPECT_TRUE(editPropertyListFile(folder.file("file/settings.plist"), setting("fontSize", 14)));
}

TEST(PropertyListEdit, LosesNothingWhenManyWriteAtOnce) {
  const TemporaryFolder folder;
  const std::string path = folder.file("settings.plist");
  std::vector<std::thread> writers;
  writers.reserve(4);
  for (int writer = 0; writer < 4; ++writer) {
    writers.emplace_back([&, writer] {
      for (int round = 0; round < 10; ++round) {
        const std::string key = std::to_string(writer) + "-" + std::to_string(round);
        EXPECT_FALSE(editPropertyListFile(path, setting(key, round)));
      }
    });
  }
  for (std::thread& writer : writers) writer.join();
  EXPECT_EQ(listIn(path).root.asDictionary()->size(), 40U);
}

}  // namespace
}  // namespace foundation
