// SPDX-License-Identifier: MIT
#include "workers/worker_pool.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <set>
#include <thread>

#include "io/descriptor.h"
#include "tests/workers/misdeeds.h"
#include "workers/message.h"
#include "workers/sanitizer.h"

namespace workers {

namespace {

using namespace std::chrono_literals;

WorkerPool::Settings settingsFor(const char* argument, std::size_t count = 1) {
  return {.command = {"/proc/self/exe", argument},
          .workers = count,
          .processorTime = 5s,
          .longestAnswer = 64};
}

// This process's children, as the system lists them, zombies too.
std::vector<pid_t> children() {
  std::vector<pid_t> result;
  for (const auto& thread : std::filesystem::directory_iterator("/proc/self/task")) {
    std::ifstream list(thread.path() / "children");
    for (pid_t child = 0; list >> child;) result.push_back(child);
  }
  return result;
}

std::set<std::string> openDescriptors() {
  std::set<std::string> result;
  for (const auto& each : std::filesystem::directory_iterator("/proc/self/fd"))
    result.insert(each.path().filename());
  return result;
}

class WorkerPoolTest : public testing::Test {
 protected:
  // The answer, or why there is none.
  static std::string ask(WorkerPool& pool, std::string_view order) {
    std::string answer;
    const io::Descriptor file(open("/proc/self/exe", O_RDONLY | O_CLOEXEC));
    const auto error = pool.ask({reinterpret_cast<const std::uint8_t*>(order.data()), order.size()},
                                file.number(), [&](std::span<const std::uint8_t> bytes) {
                                  answer.assign(bytes.begin(), bytes.end());
                                  return bytes[0] != 1;
                                });
    return error ? error->reason : answer;
  }

  // The file that goes with every order is a program.
  static bool isWell(WorkerPool& pool) {
    return ask(pool, "read") ==
           "\x7F"
           "ELF";
  }

  WorkerPool pool{settingsFor(workerArgument)};
  WorkerPool threaded{settingsFor(threadedWorkerArgument)};
};

TEST_F(WorkerPoolTest, AsksWorkersThatReadTheFileHandedToThem) {
  EXPECT_TRUE(isWell(pool));
  EXPECT_TRUE(isWell(threaded));
}

TEST_F(WorkerPoolTest, KeepsAWorkerThatBehaves) {
  ASSERT_TRUE(isWell(pool));
  const auto first = children();
  for (int round = 0; round < 20; ++round) ASSERT_TRUE(isWell(pool));
  EXPECT_EQ(children(), first);
}

TEST_F(WorkerPoolTest, HasWorkersThatReachNothingOutside) {
  struct Case {
    const char* order;
    const char* result;
  };
  const Case cases[] = {
      {"open", "refused"},           {"create", "refused"},
      {"remove", "crashed"},         {"connect", "crashed"},
      {"fork", "crashed"},           {"exec", "crashed"},
      {"map executable", "crashed"}, {"make executable", "crashed"},
      {"signal parent", "crashed"},  {"look into parent", "crashed"},
      {"trace parent", "crashed"},   {"limit parent", "refused"},
      {"raise limits", "refused"},   {"memory file", "crashed"},
      {"write file", "refused"},     {"sleep", "crashed"},
  };
  for (WorkerPool* each : {&pool, &threaded}) {
    for (const Case& row : cases) {
      EXPECT_EQ(ask(*each, row.order), row.result) << row.order;
      EXPECT_TRUE(isWell(*each)) << "after " << row.order;
    }
  }
  EXPECT_FALSE(std::filesystem::exists("/tmp/left-by-a-worker"));
}

// Of what a worker is given besides the file, only one thing can be written, and so far.
TEST_F(WorkerPoolTest, EndsWorkersThatWriteBeyondTheirFrame) {
  for (const auto& [order, isLeft] : {std::pair("frame", true), std::pair("beyond frame", false)}) {
    WorkerProcess worker;
    ASSERT_FALSE(worker.start(settingsFor(workerArgument).command, Frame::given));
    ASSERT_TRUE(receiveMessage(worker.socket(), 100, Guests::refused));
    const std::string_view text = order;
    ASSERT_TRUE(sendMessage(worker.socket(),
                            {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()}));
    EXPECT_EQ(receiveMessage(worker.socket(), 100, Guests::refused).has_value(), isLeft);
    EXPECT_EQ(lseek(worker.frame(), 0, SEEK_END), isLeft ? 1 : 0);
    worker.emptyFrame();
    EXPECT_EQ(lseek(worker.frame(), 0, SEEK_END), 0);
  }
}

TEST_F(WorkerPoolTest, LetsOnlySomeHaveThreads) {
  EXPECT_EQ(ask(threaded, "thread"), "done");
  EXPECT_NE(ask(pool, "thread"), "done");
}

TEST_F(WorkerPoolTest, StopsWorkersThatTakeTooMuchOfTheProcessor) {
  auto settings = settingsFor(workerArgument);
  settings.processorTime = 100ms;
  WorkerPool hurried(settings);
  EXPECT_EQ(ask(hurried, "spin"), "took too long");
  EXPECT_TRUE(isWell(hurried));
}

TEST_F(WorkerPoolTest, StopsWorkersThatSleep) {
  for (const char* argument : {workerArgument, threadedWorkerArgument}) {
    auto settings = settingsFor(argument);
    settings.sleepyLooks = 5;
    WorkerPool watched(settings);
    EXPECT_EQ(ask(watched, "turn away"), "fell asleep");
    EXPECT_TRUE(isWell(watched));
  }
  auto settings = settingsFor(threadedWorkerArgument);
  settings.sleepyLooks = 5;
  WorkerPool watched(settings);
  EXPECT_EQ(ask(watched, "doze"), "fell asleep");
}

TEST_F(WorkerPoolTest, StopsWorkersThatWereStopped) {
  auto settings = settingsFor(workerArgument);
  settings.sleepyLooks = 5;
  WorkerPool watched(settings);
  ASSERT_TRUE(isWell(watched));
  kill(children().front(), SIGSTOP);
  EXPECT_EQ(ask(watched, "read"), "fell asleep");
  EXPECT_TRUE(isWell(watched));
}

TEST_F(WorkerPoolTest, BoundsTheMemoryOfWorkers) {
  if (isSanitized) GTEST_SKIP() << "memory cannot be limited under a sanitizer";
  const int megabytes = std::stoi(ask(pool, "memory"));
  EXPECT_GT(megabytes, mostMegabytes / 2);
  EXPECT_LE(megabytes, mostMegabytes);
}

TEST_F(WorkerPoolTest, StopsWorkersThatSayWhatTheyMustNot) {
  for (const char* order : {"too much", "nothing", "lie", "crash", "exit"}) {
    EXPECT_EQ(ask(pool, order), "crashed") << order;
    EXPECT_TRUE(isWell(pool)) << "after " << order;
  }
}

TEST_F(WorkerPoolTest, TakesNoDescriptorsFromWorkers) {
  ASSERT_TRUE(isWell(pool));
  const auto before = openDescriptors();
  EXPECT_EQ(ask(pool, "descriptor"), "x");
  EXPECT_EQ(openDescriptors(), before);
}

TEST_F(WorkerPoolTest, AsksAgainWhereAWorkerDiedBeforeItsFile) {
  ASSERT_TRUE(isWell(pool));
  for (const pid_t child : children()) kill(child, SIGKILL);
  EXPECT_TRUE(isWell(pool));
}

TEST_F(WorkerPoolTest, StartsNoMoreWorkersThanItMay) {
  WorkerPool three(settingsFor(workerArgument, 3));
  std::atomic<int> well = 0;
  {
    std::vector<std::jthread> threads;
    for (int number = 0; number < 8; ++number)
      threads.emplace_back([&] {
        for (int round = 0; round < 20; ++round) well += isWell(three);
      });
  }
  EXPECT_EQ(well, 160);
}

TEST_F(WorkerPoolTest, SaysThatAWorkerDoesNotStart) {
  for (const char* program : {"/none/worker", "/bin/false", "/bin/true"}) {
    WorkerPool wrong({.command = {program}, .processorTime = 1s, .longestAnswer = 64});
    EXPECT_EQ(ask(wrong, "read"), "does not start") << program;
  }
  WorkerPool mute({.command = {"/bin/sleep", "1000"}, .processorTime = 1s, .sleepyLooks = 5});
  EXPECT_EQ(ask(mute, "read"), "does not start");
}

// A worker is killed every so often; nothing may stay behind.
void killAmongFiles(int files, int kills) {
  const auto before = openDescriptors();
  {
    WorkerPool pool(settingsFor(workerArgument, 2));
    for (int number = 0; number < files; ++number) {
      const bool isKilled = number % (files / kills) == 0;
      const io::Descriptor file(open("/proc/self/exe", O_RDONLY | O_CLOEXEC));
      const std::string_view order = isKilled ? "crash" : "read";
      const auto error =
          pool.ask({reinterpret_cast<const std::uint8_t*>(order.data()), order.size()},
                   file.number(), [](const auto&) { return true; });
      ASSERT_EQ(error.has_value(), isKilled) << number;
      ASSERT_LE(children().size(), 1U);
    }
  }
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a child is left";
  EXPECT_EQ(openDescriptors(), before);
}

TEST(WorkersOverTime, LeaveNothingBehind) {
  killAmongFiles(400, 40);
}

// For running by hand: takes a minute.
TEST(WorkersOverTime, DISABLED_LeaveNothingBehindOfTenThousandFilesAndAThousandKills) {
  killAmongFiles(10'000, 1'000);
}

}  // namespace

}  // namespace workers
