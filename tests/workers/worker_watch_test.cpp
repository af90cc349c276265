// SPDX-License-Identifier: MIT
#include "workers/worker_watch.h"

#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <thread>

namespace workers {

namespace {

using namespace std::chrono_literals;
using Finding = WorkerWatch::Finding;

// A process that does what it is told until the test is over.
class Child {
 public:
  explicit Child(void (*act)()) : _number(fork()) {
    if (_number != 0) return;
    while (true) act();
  }
  ~Child() {
    kill(_number, SIGKILL);
    waitpid(_number, nullptr, 0);
  }
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;

  pid_t number() const { return _number; }

 private:
  pid_t _number;
};

void work() {
  for (std::atomic<int> turn = 0; turn < 1000; ++turn) continue;
}

void rest() {
  pause();
}

// What is found first that is not work.
Finding firstFinding(WorkerWatch watch) {
  Finding finding = Finding::atWork;
  while (finding == Finding::atWork) {
    std::this_thread::sleep_for(WorkerWatch::interval);
    finding = watch.look();
  }
  return finding;
}

TEST(WorkerWatch, FindsThatTheProcessorTimeIsSpent) {
  const Child child(work);
  EXPECT_EQ(firstFinding({child.number(), 100ms, 5}), Finding::spent);
  EXPECT_GT(processorTimeOf(child.number()), 100ms);
}

TEST(WorkerWatch, CountsFromWhenItBegins) {
  const Child child(work);
  EXPECT_EQ(firstFinding({child.number(), 50ms, 5}), Finding::spent);
  EXPECT_EQ(WorkerWatch(child.number(), 60s, 5).look(), Finding::atWork);
}

TEST(WorkerWatch, FindsAProcessAsleepThatDoesNothingForLong) {
  const Child child(rest);
  EXPECT_EQ(firstFinding({child.number(), 10s, 5}), Finding::asleep);
}

TEST(WorkerWatch, DoesNotTakeWaitingForTheProcessorForSleep) {
  // More than there are processors, so that each waits most of the time.
  std::vector<std::unique_ptr<Child>> children;
  for (unsigned count = 0; count < 4 * std::thread::hardware_concurrency(); ++count)
    children.push_back(std::make_unique<Child>(work));
  WorkerWatch watch(children.front()->number(), 60s, 3);
  for (int look = 0; look < 25; ++look) {
    std::this_thread::sleep_for(WorkerWatch::interval);
    ASSERT_EQ(watch.look(), Finding::atWork);
  }
}

TEST(WorkerWatch, HasTheSystemEndWhatNobodyLooksAt) {
  const pid_t child = fork();
  if (child == 0) {
    while (true) work();
  }
  const WorkerWatch watch(child, 0ms);
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(WTERMSIG(status), SIGXCPU);
}

TEST(WorkerWatch, KnowsNothingOfAProcessThatHasEnded) {
  EXPECT_EQ(processorTimeOf(0x7FFFFFF), 0ns);
  EXPECT_FALSE(isAsleep(0x7FFFFFF));
}

}  // namespace

}  // namespace workers
