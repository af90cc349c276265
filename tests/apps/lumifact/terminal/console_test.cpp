// SPDX-License-Identifier: MIT
#include "apps/lumifact/terminal/console.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <string>

namespace lumifact::tool {
namespace {

// A pipe whose reading end can be closed and drained.
class Pipe {
 public:
  Pipe() { EXPECT_EQ(::pipe(_ends.data()), 0); }
  ~Pipe() {
    closeReader();
    ::close(_ends[1]);
  }
  Pipe(const Pipe&) = delete;
  Pipe& operator=(const Pipe&) = delete;

  int writer() const { return _ends[1]; }
  void closeReader() {
    if (_ends[0] >= 0) ::close(_ends[0]);
    _ends[0] = -1;
  }
  std::string drained() const {
    ::fcntl(_ends[0], F_SETFL, O_NONBLOCK);
    std::string text(1 << 20, '\0');
    const ssize_t count = ::read(_ends[0], text.data(), text.size());
    text.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    return text;
  }

 private:
  std::array<int, 2> _ends{-1, -1};
};

TEST(Console, KeepsResultsUntilTheyAreFlushed) {
  const Pipe results;
  const Pipe messages;
  Console console(results.writer(), messages.writer());
  console.write("one\n");
  EXPECT_EQ(results.drained(), "");
  console.flush();
  EXPECT_EQ(results.drained(), "one\n");
  EXPECT_EQ(console.status(), ExitStatus::done);
}

TEST(Console, WritesWhatIsLeftAtItsEnd) {
  const Pipe results;
  { Console(results.writer(), results.writer()).write("last\n"); }
  EXPECT_EQ(results.drained(), "last\n");
}

TEST(Console, ReportsFailuresBehindTheResultsBeforeThem) {
  const Pipe both;
  Console console(both.writer(), both.writer());
  console.write("one\n");
  console.fail("a\nb\x1b.jpg", "No such file or directory");
  console.write("two\n");
  console.flush();
  EXPECT_EQ(both.drained(),
            "one\nlumifact: a\\u000ab\\u001b.jpg: No such file or directory\ntwo\n");
  EXPECT_EQ(console.status(), ExitStatus::failed);
}

TEST(Console, WrongUsageOutweighsFailures) {
  const Pipe both;
  Console console(both.writer(), both.writer());
  console.failUsage("no FILE given");
  console.fail("x");
  EXPECT_EQ(console.status(), ExitStatus::wrongUsage);
  EXPECT_EQ(both.drained(), "lumifact: no FILE given\nlumifact: x\n");
}

TEST(Console, TakesAReaderThatGoesAwayQuietly) {
  std::signal(SIGPIPE, SIG_IGN);
  Pipe results;
  const Pipe messages;
  results.closeReader();
  Console console(results.writer(), messages.writer());
  console.write("x");
  console.flush();
  EXPECT_FALSE(console.isOpen());
  EXPECT_EQ(console.status(), ExitStatus::done);
  EXPECT_EQ(messages.drained(), "");
}

TEST(Console, ReportsResultsThatCannotBeWritten) {
  const int full = ::open("/dev/full", O_WRONLY);
  if (full < 0) GTEST_SKIP() << "no /dev/full here";
  const Pipe messages;
  {
    Console console(full, messages.writer());
    console.write("x");
    console.flush();
    EXPECT_FALSE(console.isOpen());
    EXPECT_EQ(console.status(), ExitStatus::failed);
  }
  EXPECT_EQ(messages.drained(), "lumifact: standard output: No space left on device\n");
  ::close(full);
}

TEST(Console, ShowsNoStatusWithoutATerminal) {
  const Pipe both;
  Console console(both.writer(), both.writer());
  EXPECT_FALSE(console.canShowStatus());
  EXPECT_FALSE(console.resultsAreOnTerminal());
}

TEST(Console, AStatusLineGivesWayToTheNextAndToMessages) {
  const Pipe both;
  Console console(both.writer(), both.writer());
  console.showStatus({});
  console.showStatus("1");
  console.showStatus("2");
  console.fail("x");
  console.showStatus({});
  EXPECT_EQ(both.drained(), "\r\x1b[K1\r\x1b[K2\r\x1b[Klumifact: x\n");
}

}  // namespace
}  // namespace lumifact::tool
