// SPDX-License-Identifier: MIT
#include "apps/lumifact/files/file_list.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "tests/support/temporary_folder.h"

namespace lumifact::tool {
namespace {

using support::TemporaryFolder;

using Names = std::vector<std::string>;

// The paths below the folder, with the reason behind those that failed.
Names gathered(const TemporaryFolder& folder, FileListRequest request) {
  FileList files(std::move(request));
  Names names;
  while (const auto item = files.next()) {
    std::string name = item->path;
    if (name.starts_with(folder.path())) name.erase(0, folder.path().size());
    names.push_back(item->error ? name + ": " + item->error->reason : name);
  }
  EXPECT_EQ(files.remaining(), 0U);
  return names;
}

FileListRequest recursive(const std::string& path) {
  return {.paths = {path}, .listFile = {}, .listSeparator = '\n', .isRecursive = true};
}

TEST(FileList, GivesArgumentsAsTheyStand) {
  const TemporaryFolder folder;
  EXPECT_EQ(gathered(folder, {.paths = {"b", "./a", "b", "", "-x"}, .listFile = {}}),
            (Names{"b", "./a", "b", "", "-x"}));
}

TEST(FileList, AFolderIsAnErrorUnlessItIsWalked) {
  const TemporaryFolder folder;
  EXPECT_EQ(gathered(folder, {.paths = {folder.path()}, .listFile = {}}),
            (Names{": Is a directory (--recursive reads what it holds)"}));
  EXPECT_EQ(gathered(folder, recursive(folder.path())), Names{});
}

TEST(FileList, WalksSortedByNameWithoutHiddenFilesAndLinksToFolders) {
  const TemporaryFolder folder;
  for (const char* name : {"b.jpg", "a/2.jpg", "a/1.jpg", "a/.git/x.jpg", ".hidden.jpg", "B.jpg",
                           "c/d/e.jpg", "a.jpg", "target/deep.jpg"}) {
    folder.write(name, "x");
  }
  std::filesystem::create_symlink(folder.file("target"), folder.file("link"));
  std::filesystem::create_symlink(folder.path(), folder.file("a/up"));
  std::filesystem::create_symlink(folder.file("b.jpg"), folder.file("link.jpg"));
  std::filesystem::create_symlink("nowhere", folder.file("broken.jpg"));
  EXPECT_EQ(gathered(folder, recursive(folder.path())),
            (Names{"/B.jpg", "/a/1.jpg", "/a/2.jpg", "/a.jpg", "/b.jpg", "/broken.jpg",
                   "/c/d/e.jpg", "/link.jpg", "/target/deep.jpg"}));
}

TEST(FileList, AFolderThatIsNamedByALinkIsWalked) {
  const TemporaryFolder folder;
  folder.write("target/x.jpg", "x");
  std::filesystem::create_symlink("target", folder.file("link"));
  EXPECT_EQ(gathered(folder, recursive(folder.file("link/"))), Names{"/link/x.jpg"});
}

TEST(FileList, TellsWhichFolderCannotBeRead) {
  if (::geteuid() == 0) GTEST_SKIP() << "root reads every folder";
  const TemporaryFolder folder;
  folder.write("a/x.jpg", "x");
  folder.write("b.jpg", "x");
  ::chmod(folder.file("a").c_str(), 0);
  EXPECT_EQ(gathered(folder, recursive(folder.path())), (Names{"/a: Permission denied", "/b.jpg"}));
  ::chmod(folder.file("a").c_str(), 0700);
}

TEST(FileList, ReadsMoreNamesFromAList) {
  const TemporaryFolder folder;
  const std::string list = folder.write("list", "a b.jpg\n\n\u00e9.jpg\nlast");
  EXPECT_EQ(gathered(folder, {.paths = {"first"}, .listFile = list}),
            (Names{"first", "a b.jpg", "\u00e9.jpg", "last"}));
}

TEST(FileList, ReadsNamesWithLineBreaksFromAListOfZeroBytes) {
  const TemporaryFolder folder;
  const std::string list = folder.write("list", std::string_view("a\nb.jpg\0c.jpg\0", 14));
  EXPECT_EQ(gathered(folder, {.paths = {}, .listFile = list, .listSeparator = '\0'}),
            (Names{"a\nb.jpg", "c.jpg"}));
}

TEST(FileList, WalksFoldersInAList) {
  const TemporaryFolder folder;
  folder.write("in/x.jpg", "x");
  const std::string list = folder.write("list", folder.file("in") + "\nafter\n");
  EXPECT_EQ(
      gathered(folder, {.paths = {}, .listFile = list, .listSeparator = '\n', .isRecursive = true}),
      (Names{"/in/x.jpg", "after"}));
}

TEST(FileList, TellsWhyAListCannotBeRead) {
  const TemporaryFolder folder;
  EXPECT_EQ(gathered(folder, {.paths = {"first"}, .listFile = folder.file("none")}),
            (Names{"first", "/none: No such file or directory"}));
  EXPECT_EQ(gathered(folder, {.paths = {}, .listFile = folder.path()}), Names{": Is a directory"});
}

TEST(FileList, KnowsHowManyNamesAreLeft) {
  const TemporaryFolder folder;
  for (const char* name : {"a.jpg", "b.jpg", "c.jpg"}) folder.write(name, "x");
  FileList files(FileListRequest{
      .paths = {folder.path(), "x"}, .listFile = {}, .listSeparator = '\n', .isRecursive = true});
  EXPECT_EQ(files.remaining(), 2U);
  ASSERT_TRUE(files.next());
  EXPECT_EQ(files.remaining(), 3U);
}

}  // namespace
}  // namespace lumifact::tool
