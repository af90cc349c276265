// SPDX-License-Identifier: MIT
//
// A machine that has something else to do: files say the same and pictures show, as limits count
// what a file takes and not how long that takes.
#include <gmock/gmock.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <thread>

#include "tests/hostile/program_run.h"

namespace hostile {

namespace {

using namespace std::chrono_literals;

// Programs get less of the processor than everybody else.
void givePrecedence() {
  if (::nice(5) < 0) ::_exit(126);
}

// As many threads at work as there are processors, while it lives.
class BusyMachine {
 public:
  BusyMachine() {
    for (unsigned count = 0; count < std::thread::hardware_concurrency(); ++count)
      _threads.emplace_back([](const std::stop_token& stop) {
        for (std::atomic<unsigned> turn = 0; !stop.stop_requested(); ++turn) continue;
      });
  }

 private:
  std::vector<std::jthread> _threads;
};

TEST(Load, ChangesNoReport) {
  const std::string line =
      "$TOOL report --jobs 4 -r $FILES/movies; $TOOL report $FILES/pairs/ts* 2>&1; true";
  const RunEnd quiet = runLine(line);
  const BusyMachine busy;
  for (int round = 0; round < 3; ++round) {
    const RunEnd loaded = ProgramRun(line, givePrecedence).finish();
    EXPECT_EQ(loaded.output, quiet.output);
    EXPECT_EQ(loaded.messages, quiet.messages);
  }
}

// The large picture, decoded by workers that are stopped most of the time.
TEST(Load, BreaksNoPicture) {
  ProgramRun run(showing(hostileFile("large"), "open item 0\nexpect-not \"cannot be shown\"\n"),
                 givePrecedence);
  int stops = 0;
  while (run.isRunning()) {
    const std::vector<pid_t> workers = run.workers();
    for (const pid_t worker : workers) stops += ::kill(worker, SIGSTOP) == 0 ? 1 : 0;
    std::this_thread::sleep_for(45ms);
    for (const pid_t worker : workers) ::kill(worker, SIGCONT);
    std::this_thread::sleep_for(15ms);
  }
  const RunEnd end = run.finish();
  EXPECT_EQ(end.status, 0) << end.messages;
  EXPECT_EQ(end.messages, "");
  EXPECT_GT(stops, 10);
}

}  // namespace

}  // namespace hostile
