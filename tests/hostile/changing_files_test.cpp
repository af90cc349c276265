// SPDX-License-Identifier: MIT
//
// Files that become others while they are read: a picture, one that is cut, another container, a
// FIFO, a folder, a link to itself.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <thread>

#include "tests/hostile/limits.h"
#include "tests/hostile/program_run.h"

namespace hostile {

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

// A folder with good photos and a name that stands for another thing all the time.
class ChangingFile {
 public:
  ChangingFile() {
    fs::create_directory(_forms.path() + "/folder.jpg");
    ::mkfifo(_forms.file("fifo").c_str(), 0600);
    fs::create_symlink(name(), _forms.file("loop"));
    for (const char* content : {"jpg", "png", "mov", "mkv", "ts", "empty"})
      copy(std::string(content) + " as jpg.jpg", _forms.file(content));
    for (const char* good : {"a.jpg", "b.jpg", "c.jpg"}) copy("jpg as jpg.jpg", _folder.file(good));
    copy("jpg as jpg.jpg", name());
    _thread = std::jthread([this](const std::stop_token& stop) { run(stop); });
  }

  const std::string& folder() const { return _folder.path(); }
  std::string name() const { return _folder.file("changing.jpg"); }
  int changes() const { return _changes; }

 private:
  static void copy(const std::string& file, const std::string& to) {
    fs::copy_file(hostileFile("pairs/" + file), to);
  }
  // The name stands for something at any time, as the system exchanges two names at once.
  void run(const std::stop_token& stop) {
    const std::vector<std::string> forms = namesIn(_forms.path());
    while (!stop.stop_requested())
      for (const std::string& form : forms) {
        const std::string other = _forms.file(form);
        const int isRefused =
            ::renameat2(AT_FDCWD, other.c_str(), AT_FDCWD, name().c_str(), RENAME_EXCHANGE);
        _changes += isRefused == 0 ? 1 : 0;
        // What is being read becomes shorter, and as long again.
        const int file = ::open(other.c_str(), O_WRONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC);
        struct stat status {};
        if (file >= 0 && ::fstat(file, &status) == 0 && S_ISREG(status.st_mode) &&
            (::ftruncate(file, status.st_size / 2) != 0 || ::ftruncate(file, status.st_size) != 0))
          _changes = -1'000'000;
        if (file >= 0) ::close(file);
      }
  }

  support::TemporaryFolder _forms;
  support::TemporaryFolder _folder;
  std::atomic<int> _changes = 0;
  std::jthread _thread;
};

TEST(ChangingFiles, AreReportedOrNamedByTheTool) {
  const ChangingFile file;
  constexpr int times = 2000;
  const std::string list =
      "for i in $(seq " + std::to_string(times) + "); do echo '" + file.name() + "'; done | ";
  const RunEnd end = runLine(list + "$TOOL caption --jobs 4 --files-from -");
  EXPECT_EQ(end.status, 1);
  EXPECT_GT(file.changes(), 10);
  EXPECT_EQ(linesOf(end.output).size() + linesOf(end.messages).size(), times);
  EXPECT_FALSE(end.output.empty());
  for (const std::string& line : linesOf(end.messages)) {
    EXPECT_TRUE(line.starts_with("lumifact: " + file.name() + ": ")) << line;
    EXPECT_THAT(line, testing::Not(HasSubstr("its reader")));
  }
  expectWithin(end, toolKilobytes);
}

TEST(ChangingFiles, AreShownOrNotByThePhotoApplication) {
  const ChangingFile file;
  std::string script;
  for (int round = 0; round < 30; ++round) script += "open item 0\nback\nopen item 2\nback\n";
  const RunEnd end = runLine(showing(file.folder(), script));
  EXPECT_EQ(end.status, 0) << end.messages;
  EXPECT_EQ(end.messages, "");
  EXPECT_GT(file.changes(), 10);
  expectWithin(end, hostKilobytes);
}

TEST(ChangingFiles, LeaveNothingBehindThatCountsLater) {
  const support::TemporaryFolder folder;
  const std::string path = folder.file("photo.jpg");
  fs::create_symlink(path, path);
  const std::string command = "exec $TOOL caption " + path;
  EXPECT_THAT(runLine(command).messages, HasSubstr("Too many levels of symbolic links"));
  fs::remove(path);
  fs::copy_file(hostileFile("pairs/jpg as jpg.jpg"), path);
  EXPECT_EQ(runLine(command).output, "64x48, jpg\n");
}

}  // namespace

}  // namespace hostile
