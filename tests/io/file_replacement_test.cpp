// SPDX-License-Identifier: MIT
#include "io/file_replacement.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "io/descriptor.h"
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

TEST_F(FileReplacementTest, AFullDiskLeavesEverythingAsItWas) {
  folder.write("list", "old");
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
  const rlimit small{10, before.rlim_max};
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
  const auto failure = replaceFile(path, std::string(100, 'x'));
  ::setrlimit(RLIMIT_FSIZE, &before);
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->reason, "File too large");
  EXPECT_EQ(support::contentsOf(path), "old");
  EXPECT_THAT(names(), testing::ElementsAre("list"));
}

TEST_F(FileReplacementTest, OnlyFilesAreReplaced) {
  ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
  std::filesystem::create_symlink("list", folder.file("link"));
  std::filesystem::create_symlink("loop", folder.file("loop"));
  for (const char* name : {"list", "link"})
    EXPECT_EQ(replaceFile(folder.file(name), "x")->reason, "not a regular file");
  EXPECT_EQ(replaceFile("/dev/null", "x")->reason, "not a regular file");
  EXPECT_EQ(replaceFile(folder.file("loop"), "x")->reason, "Too many levels of symbolic links");
  EXPECT_THAT(names(), testing::UnorderedElementsAre("list", "link", "loop"));
}

TEST_F(FileReplacementTest, OutputGoesIntoAPipeAndIntoAFileAsAWhole) {
  EXPECT_FALSE(writeOutput(path, "file"));
  EXPECT_EQ(support::contentsOf(path), "file");
  ASSERT_EQ(::mkfifo(folder.file("pipe").c_str(), 0600), 0);
  const Descriptor reader(::open(folder.file("pipe").c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  EXPECT_FALSE(writeOutput(folder.file("pipe"), "piped"));
  char bytes[8] = {};
  EXPECT_EQ(::read(reader.number(), bytes, sizeof(bytes)), 5);
  EXPECT_STREQ(bytes, "piped");
  EXPECT_EQ(writeOutput("/dev/full", "x")->reason, "No space left on device");
  EXPECT_EQ(writeOutput(folder.path(), "x")->reason, "Is a directory");
  EXPECT_THAT(names(), testing::UnorderedElementsAre("list", "pipe"));
}

TEST_F(FileReplacementTest, LinksStayAndWhatTheyLeadToIsReplaced) {
  std::filesystem::create_symlink("list", folder.file("link"));
  EXPECT_FALSE(replaceFile(folder.file("link"), "new"));
  EXPECT_TRUE(std::filesystem::is_symlink(folder.file("link")));
  EXPECT_EQ(support::contentsOf(path), "new");
}

TEST_F(FileReplacementTest, ANameMayBeAsLongAsTheSystemTakesIt) {
  const std::string name(255, 'x');
  EXPECT_FALSE(replaceFile(folder.file(name), "new"));
  EXPECT_THAT(names(), testing::ElementsAre(name));
}

TEST_F(FileReplacementTest, RemovesWhatAKilledProcessLeftAndNothingElse) {
  for (const char* name : {".list.12-0.new", ".list.new", ".list.12-0.new.jpg", ".list.x-0.new",
                           ".lists.12-0.new", "list.12-0.new", ".list.12-1.new"})
    folder.write(name, "left");
  const Descriptor other(::open(folder.file(".list.12-1.new").c_str(), O_RDONLY | O_CLOEXEC));
  ASSERT_EQ(::flock(other.number(), LOCK_EX), 0) << "by a process that is still at it";
  EXPECT_FALSE(replaceFile(path, "new"));
  EXPECT_THAT(names(), testing::UnorderedElementsAre("list", ".list.new", ".list.12-0.new.jpg",
                                                     ".list.x-0.new", ".lists.12-0.new",
                                                     "list.12-0.new", ".list.12-1.new"));
}

TEST_F(FileReplacementTest, AKilledProcessLeavesNothingThatTheNextDoesNotClear) {
  const std::string bytes[] = {std::string(100'000, 'a'), std::string(200'000, 'b')};
  for (int round = 0; round < 40; ++round) {
    const pid_t child = ::fork();
    if (child == 0)
      for (int turn = 0;; ++turn) static_cast<void>(replaceFile(path, bytes[turn % 2]));
    ::usleep(static_cast<useconds_t>(500 + 397 * round));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    const std::string found = support::contentsOf(path);
    EXPECT_TRUE(found.empty() || found == bytes[0] || found == bytes[1]) << found.size();
  }
  EXPECT_FALSE(replaceFile(path, "last"));
  EXPECT_EQ(support::contentsOf(path), "last");
  EXPECT_THAT(names(), testing::ElementsAre("list"));
}

TEST_F(FileReplacementTest, ManyAtOnceLeaveOneOfTheirs) {
  std::vector<std::thread> writers;
  writers.reserve(4);
  for (char letter = 'a'; letter < 'e'; ++letter)
    writers.emplace_back([&, letter] {
      for (int round = 0; round < 20; ++round)
        EXPECT_FALSE(replaceFile(path, std::string(1000, letter)));
    });
  for (std::thread& writer : writers) writer.join();
  const std::string found = support::contentsOf(path);
  ASSERT_EQ(found.size(), 1000U);
  EXPECT_EQ(found.find_first_not_of(found[0]), std::string::npos);
  EXPECT_THAT(names(), testing::ElementsAre("list"));
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
