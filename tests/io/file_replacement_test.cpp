// SPDX-License-Identifier: MIT
#include "io/file_replacement.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "tests/support/temporary_folder.h"

namespace io {
namespace {

class FileReplacementTest : public testing::Test {
 protected:
  std::vector<std::string> names() const {
    std::vector<std::string> found;
    for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
      found.push_back(entry.path().filename());
    return found;
  }

  support::TemporaryFolder folder;
  std::string path = folder.file("list");
};

TEST_F(FileReplacementTest, MakesAFileOrReplacesIt) {
  EXPECT_FALSE(replaceFile(path, "first"));
  EXPECT_EQ(support::contentsOf(path), "first");
  EXPECT_FALSE(replaceFile(path, ""));
  EXPECT_EQ(support::contentsOf(path), "");
  EXPECT_THAT(names(), testing::ElementsAre("list"));
}

TEST_F(FileReplacementTest, KeepsPermissions) {
  folder.write("list", "old");
  ASSERT_EQ(::chmod(path.c_str(), 0640), 0);
  EXPECT_FALSE(replaceFile(path, "new"));
  struct stat status {};
  ASSERT_EQ(::stat(path.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777U, 0640U);
}

TEST_F(FileReplacementTest, AReaderKeepsWhatItOpened) {
  folder.write("list", "old");
  std::ifstream reader(path);
  EXPECT_FALSE(replaceFile(path, "new"));
  std::string text;
  reader >> text;
  EXPECT_EQ(text, "old");
}

TEST_F(FileReplacementTest, AFailureLeavesEverythingAsItWas) {
  std::filesystem::create_directory(path);
  const auto failure = replaceFile(path, "new");
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->reason, "Is a directory");
  EXPECT_THAT(names(), testing::ElementsAre("list"));
  EXPECT_EQ(replaceFile(folder.file("nowhere/list"), "new")->reason, "No such file or directory");
}

TEST_F(FileReplacementTest, ARelativeNameIsOneInTheFolderOfTheProcess) {
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(folder.path());
  EXPECT_FALSE(replaceFile("list", "here"));
  std::filesystem::current_path(before);
  EXPECT_EQ(support::contentsOf(path), "here");
}

}  // namespace
}  // namespace io
