// SPDX-License-Identifier: MIT
//
// Workers that somebody kills or stops while the programs run: a file or two without a report, a
// placeholder, and nothing that stays behind.
#include <gmock/gmock.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <thread>

#include "tests/hostile/limits.h"
#include "tests/hostile/program_run.h"

namespace hostile {

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

// Other containers, so that every report needs a reader.
class Containers {
 public:
  explicit Containers(int files) {
    for (int number = 0; number < files; ++number)
      fs::create_hard_link(seed(), _folder.file(std::to_string(number) + ".avi"));
  }
  const std::string& folder() const { return _folder.path(); }

 private:
  // A copy, since links do not lead to other file systems.
  std::string seed() const {
    const std::string path = _seeds.file("seed");
    fs::copy_file(hostileFile("pairs/avi as avi.avi"), path, fs::copy_options::skip_existing);
    return path;
  }

  support::TemporaryFolder _seeds;
  support::TemporaryFolder _folder;
};

// Signals the program's workers until it ends, at most so often; how often it did.
int signalWorkers(const ProgramRun& run, int signal, int most, std::chrono::milliseconds pause) {
  int count = 0;
  while (run.isRunning() && count < most) {
    for (const pid_t worker : run.workers())
      if (::kill(worker, signal) == 0) ++count;
    std::this_thread::sleep_for(pause);
  }
  return count;
}

// `lost` is what is said of a file whose reader was lost at work.
void expectAllReported(const RunEnd& end, int files, const std::string& lost) {
  int reports = 0;
  for (const std::string& line : linesOf(end.output)) reports += line == "16x8, " ? 1 : 0;
  const std::vector<std::string> messages = linesOf(end.messages);
  EXPECT_EQ(reports + static_cast<int>(messages.size()), files);
  EXPECT_GT(reports, 0);
  for (const std::string& message : messages)
    EXPECT_THAT(message, testing::AnyOf(testing::EndsWith(": its reader " + lost),
                                        testing::EndsWith(": its reader does not start")));
}

void killReadersOfTool(int files, int kills) {
  const Containers containers(files);
  ProgramRun run("exec $TOOL caption --jobs 4 -r '" + containers.folder() + "'");
  const int killed = signalWorkers(run, SIGKILL, kills, 2ms);
  const RunEnd end = run.finish();
  expectAllReported(end, files, "crashed");
  expectWithin(end, toolKilobytes);
  EXPECT_GT(killed, 0);
  EXPECT_LE(linesOf(end.messages).size(), static_cast<std::size_t>(killed));
  std::cout << files << " files, " << killed << " kills, " << linesOf(end.messages).size()
            << " without a report, " << end.processorSeconds << " s of the processor, at most "
            << end.peakKilobytes << " KB\n";
}

TEST(LostWorkers, CostTheToolAFileAtMost) {
  killReadersOfTool(500, 50);
}

// For running by hand: takes minutes.
TEST(LostWorkers, DISABLED_CostTheToolAFileAtMostOfTenThousandWithAThousandKills) {
  killReadersOfTool(10'000, 1'000);
}

TEST(LostWorkers, AreReplacedWhereTheyWereStopped) {
  constexpr int files = 200;
  const Containers containers(files);
  ProgramRun run("exec $TOOL caption --jobs 2 -r '" + containers.folder() + "'");
  EXPECT_GT(signalWorkers(run, SIGSTOP, 1, 1ms), 0);
  const RunEnd end = run.finish();
  expectAllReported(end, files, "fell asleep");
  EXPECT_LE(linesOf(end.messages).size(), 1U);
}

// Shared memory of the whole system, in kilobytes.
long sharedMemory() {
  std::ifstream facts("/proc/meminfo");
  for (std::string word; facts >> word;) {
    long kilobytes = 0;
    if (word == "Shmem:" && facts >> kilobytes) return kilobytes;
  }
  return 0;
}

void killDecodersOfHost(int rounds, int kills) {
  std::string script;
  for (int round = 0; round < rounds; ++round)
    script += "open item " + std::to_string(round % 100) + "\nback\n";
  const long before = sharedMemory();
  ProgramRun run(showing(hostileFile("pairs"), script));
  const int killed = signalWorkers(run, SIGKILL, kills, 20ms);
  const RunEnd end = run.finish();
  EXPECT_EQ(end.status, 0) << end.messages;
  EXPECT_EQ(end.messages, "");
  EXPECT_GT(killed, 0);
  expectWithin(end, hostKilobytes);
  std::cout << rounds << " pictures, " << killed << " kills, " << end.processorSeconds
            << " s of the processor, shared memory " << before << " KB before, " << sharedMemory()
            << " KB after\n";
}

TEST(LostWorkers, CostThePhotoApplicationAPlaceholderAtMost) {
  killDecodersOfHost(60, 20);
}

// For running by hand: takes minutes.
TEST(LostWorkers, DISABLED_CostThePhotoApplicationAPlaceholderAtMostOfAThousandKills) {
  killDecodersOfHost(2'000, 1'000);
}

}  // namespace

}  // namespace hostile
