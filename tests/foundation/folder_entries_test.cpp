// SPDX-License-Identifier: MIT
#include "foundation/folder_entries.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/temporary_folder.h"

namespace foundation {
namespace {

using testing::ElementsAre;

std::vector<std::string> namesOf(const std::vector<FolderEntry>& entries) {
  std::vector<std::string> names;
  for (const FolderEntry& entry : entries) {
    names.push_back(entry.kind == FolderEntryKind::folder ? entry.name + "/" : entry.name);
  }
  return names;
}

TEST(FolderEntriesTest, comeSortedWithoutHiddenOnes) {
  const support::TemporaryFolder folder;
  for (const char* name : {"b.jpg", "a/x", "A.jpg", ".hidden", ".hiddenFolder/x", "\xFF.jpg"}) {
    folder.write(name, "x");
  }
  const auto entries = readFolder(folder.path());
  ASSERT_TRUE(entries) << entries.error().reason;
  EXPECT_THAT(namesOf(*entries), ElementsAre("A.jpg", "a/", "b.jpg", "\xFF.jpg"));
}

TEST(FolderEntriesTest, linksAreFilesUnlessTheyLeadToFolders) {
  namespace fs = std::filesystem;
  const support::TemporaryFolder folder;
  folder.write("real/x", "x");
  fs::create_symlink("real/x", folder.file("toFile"));
  fs::create_directory_symlink("real", folder.file("toFolder"));
  fs::create_directory_symlink(".", folder.file("toItself"));
  fs::create_symlink("nothing", folder.file("toNothing"));
  fs::create_symlink("inCircles", folder.file("inCircles"));
  const auto entries = readFolder(folder.path());
  ASSERT_TRUE(entries) << entries.error().reason;
  EXPECT_THAT(namesOf(*entries), ElementsAre("inCircles", "real/", "toFile", "toNothing"));
  for (const FolderEntry& entry : *entries) EXPECT_EQ(entry.isLink, entry.name != "real");
}

TEST(FolderEntriesTest, whatCannotBeOpenedIsRefused) {
  const support::TemporaryFolder folder;
  EXPECT_EQ(readFolder(folder.file("none")).error().reason, "No such file or directory");
  EXPECT_EQ(readFolder(folder.write("file", "x")).error().reason, "Not a directory");
}

TEST(FolderEntriesTest, pathsHaveOneSlash) {
  EXPECT_EQ(pathInFolder("/a", "b"), "/a/b");
  EXPECT_EQ(pathInFolder("/", "b"), "/b");
  EXPECT_EQ(pathInFolder("a/", "b"), "a/b");
}

}  // namespace
}  // namespace foundation
