// SPDX-License-Identifier: MIT
#include "io/byte_source.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <chrono>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <limits>

#include "tests/support/opened_names.h"

namespace io {
namespace {

namespace fs = std::filesystem;
using Bytes = std::vector<std::uint8_t>;

constexpr std::uint64_t farAway = std::numeric_limits<std::uint64_t>::max();

// What a read of `count` bytes gives; none where it fails.
std::optional<Bytes> read(ByteSource& source, std::uint64_t offset, std::size_t count) {
  Bytes into(count, 0xEE);
  const auto done = source.readAt(offset, into);
  if (!done) return std::nullopt;
  into.resize(*done);
  return into;
}

// The contract that every source keeps.
void expectPositionedReads(ByteSource& source) {
  EXPECT_EQ(source.size(), 5U);
  EXPECT_EQ(source.bytesRead(), 0U);
  EXPECT_EQ(read(source, 0, 5), (Bytes{1, 2, 3, 4, 5}));
  EXPECT_EQ(read(source, 3, 1), (Bytes{4}));
  EXPECT_EQ(source.bytesRead(), 6U);
  EXPECT_EQ(read(source, 3, 10), (Bytes{4, 5}));
  EXPECT_EQ(read(source, 5, 1), Bytes{});
  EXPECT_EQ(read(source, 2, 0), Bytes{});
  EXPECT_EQ(read(source, farAway, 1), Bytes{});
  EXPECT_EQ(read(source, farAway - 1, 5), Bytes{});
  EXPECT_EQ(read(source, std::uint64_t{1} << 63, 5), Bytes{});
  EXPECT_EQ(source.bytesRead(), 8U);
}

class FileSourceTest : public ::testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = (fs::temp_directory_path() / "byte_source_XXXXXX").string();
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    _folder = pattern;
  }
  void TearDown() override { fs::remove_all(_folder); }

  std::string path(const std::string& name) const { return (_folder / name).string(); }
  std::string write(const std::string& name, const Bytes& bytes) const {
    std::ofstream(path(name), std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    return path(name);
  }

 private:
  fs::path _folder;
};

std::string reasonOf(const std::string& path) {
  const auto source = FileSource::open(path);
  return source ? "opened" : source.error().reason;
}

TEST(MemorySource, ReadsByPosition) {
  MemorySource source({1, 2, 3, 4, 5});
  expectPositionedReads(source);
}

TEST(FailingSource, ReadsByPositionUntilItsFailure) {
  FailingSource source({1, 2, 3, 4, 5}, farAway, FailingSource::Failure::shortRead);
  expectPositionedReads(source);
}

TEST(FailingSource, FailsAnyReadThatReachesItsFailure) {
  FailingSource source({1, 2, 3, 4, 5}, 3, FailingSource::Failure::error);
  EXPECT_EQ(read(source, 0, 3), (Bytes{1, 2, 3}));
  EXPECT_FALSE(read(source, 0, 4));
  EXPECT_FALSE(read(source, 3, 1));
  EXPECT_FALSE(read(source, farAway, 2));
  Bytes into(4);
  EXPECT_EQ(source.readAt(0, into).error().reason, "Input/output error");
  EXPECT_EQ(source.bytesRead(), 3U);
}

TEST(FailingSource, ComesBackShortLikeAFileThatShrank) {
  FailingSource source({1, 2, 3, 4, 5}, 3, FailingSource::Failure::shortRead);
  EXPECT_EQ(source.size(), 5U);
  EXPECT_EQ(read(source, 1, 4), (Bytes{2, 3}));
  EXPECT_EQ(read(source, 3, 1), Bytes{});
}

TEST_F(FileSourceTest, ReadsByPosition) {
  auto source = FileSource::open(write("file", {1, 2, 3, 4, 5}));
  ASSERT_TRUE(source);
  expectPositionedReads(**source);
}

TEST_F(FileSourceTest, KnowsWhenTheFileWasModified) {
  const std::string name = write("file", {1});
  const timespec times[2] = {{.tv_sec = 5, .tv_nsec = 0},
                             {.tv_sec = 1538309391, .tv_nsec = 250'000'000}};
  ASSERT_EQ(utimensat(AT_FDCWD, name.c_str(), times, 0), 0);
  const auto source = FileSource::open(name);
  ASSERT_TRUE(source);
  EXPECT_DOUBLE_EQ((*source)->modificationTime(), 1538309391.25);
}

TEST_F(FileSourceTest, OpensEmptyFilesAndOddNames) {
  for (const char* name : {"empty", "-rf", "new\nline", "caf\xE9", "  "}) {
    const auto source = FileSource::open(write(name, {}));
    ASSERT_TRUE(source) << name;
    EXPECT_EQ((*source)->size(), 0U);
    EXPECT_EQ(read(**source, 0, 1), Bytes{});
  }
}

TEST_F(FileSourceTest, FollowsLinks) {
  fs::create_symlink(write("file", {7}), path("link"));
  const auto source = FileSource::open(path("link"));
  ASSERT_TRUE(source);
  EXPECT_EQ(read(**source, 0, 1), Bytes{7});
}

TEST_F(FileSourceTest, SaysWhyAFileCannotBeOpened) {
  EXPECT_EQ(reasonOf(path("missing")), "No such file or directory");
  EXPECT_EQ(reasonOf(""), "No such file or directory");
  EXPECT_EQ(reasonOf(write("file", {}) + "/inside"), "Not a directory");
  EXPECT_EQ(reasonOf(path(std::string(300, 'x'))), "File name too long");
  fs::create_symlink("loop", path("loop"));
  EXPECT_EQ(reasonOf(path("loop")), "Too many levels of symbolic links");
}

TEST_F(FileSourceTest, SaysWhyAFileMayNotBeRead) {
  if (geteuid() == 0) GTEST_SKIP() << "nothing is forbidden to the superuser";
  const std::string name = write("locked", {1});
  fs::permissions(name, fs::perms::none);
  EXPECT_EQ(reasonOf(name), "Permission denied");
}

TEST_F(FileSourceTest, RefusesDirectories) {
  EXPECT_EQ(reasonOf(path(".")), "Is a directory");
}

TEST_F(FileSourceTest, RefusesFifosWithoutWaitingForAWriter) {
  ASSERT_EQ(mkfifo(path("fifo").c_str(), 0600), 0);
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(reasonOf(path("fifo")), "not a regular file");
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST_F(FileSourceTest, TellsFifosBeforeItOpensThem) {
  ASSERT_EQ(mkfifo(path("fifo").c_str(), 0600), 0);
  fs::create_symlink("fifo", path("link"));
  write("file", {});
  support::OpenedNames opened(path("."));
  EXPECT_EQ(reasonOf(path("fifo")), "not a regular file");
  EXPECT_EQ(reasonOf(path("link")), "not a regular file");
  EXPECT_EQ(reasonOf(path("file")), "opened");
  EXPECT_EQ(opened.count("fifo"), 0);
  EXPECT_EQ(opened.count("file"), 1);
}

TEST_F(FileSourceTest, RefusesDevicesAndSockets) {
  EXPECT_EQ(reasonOf("/dev/null"), "not a regular file");
  EXPECT_EQ(reasonOf("/dev/zero"), "not a regular file");
  const int descriptor = socket(AF_UNIX, SOCK_STREAM, 0);
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  std::strncpy(address.sun_path, path("socket").c_str(), sizeof(address.sun_path) - 1);
  ASSERT_EQ(bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
  EXPECT_NE(reasonOf(path("socket")), "opened");
  close(descriptor);
}

TEST_F(FileSourceTest, ComesBackShortWhenTheFileShrinks) {
  const std::string name = write("file", Bytes(100'000, 9));
  const auto source = FileSource::open(name);
  ASSERT_TRUE(source);
  fs::resize_file(name, 10);
  EXPECT_EQ((*source)->size(), 100'000U);
  EXPECT_EQ(read(**source, 0, 100), Bytes(10, 9));
  EXPECT_EQ(read(**source, 50'000, 100), Bytes{});
}

TEST_F(FileSourceTest, KeepsReadingAFileThatVanished) {
  const std::string name = write("file", {1, 2, 3});
  const auto source = FileSource::open(name);
  ASSERT_TRUE(source);
  fs::remove(name);
  EXPECT_EQ(read(**source, 1, 2), (Bytes{2, 3}));
}

TEST_F(FileSourceTest, ReadsFarInsideSparseFiles) {
  const std::string name = write("sparse", {});
  constexpr std::uint64_t size = std::uint64_t{5} << 30;
  fs::resize_file(name, size);
  const auto source = FileSource::open(name);
  ASSERT_TRUE(source);
  EXPECT_EQ((*source)->size(), size);
  EXPECT_EQ(read(**source, size - 2, 10), (Bytes{0, 0}));
}

TEST_F(FileSourceTest, ClosesWhatItOpened) {
  const std::string name = write("file", {1});
  const auto openDescriptors = [] {
    return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
  };
  const auto before = openDescriptors();
  for (int round = 0; round < 10; ++round) {
    ASSERT_TRUE(FileSource::open(name));
    ASSERT_FALSE(FileSource::open(path(".")));
  }
  EXPECT_EQ(openDescriptors(), before);
}

}  // namespace
}  // namespace io
