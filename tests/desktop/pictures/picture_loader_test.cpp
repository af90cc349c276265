// SPDX-License-Identifier: MIT
#include "desktop/pictures/picture_loader.h"

#include <gmock/gmock.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <set>
#include <thread>

#include "samples/formats/bmp_file.h"
#include "tests/desktop/pictures/test_files.h"
#include "workers/sanitizer.h"

namespace desktop::pictures {

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using Kind = Outcome::Kind;

constexpr auto longTime = 60s;
constexpr Request small{8, 8, Request::Fit::fit};

PictureLoader::Settings settings(int workers = 1) {
  return {.command = {"/proc/self/exe", "--decode-pictures"},
          .workers = workers,
          .processorTime = 20s,
          .cacheBytes = 1 << 20};
}

// This process's children, as the system lists them.
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

class PictureLoaderTest : public testing::Test {
 protected:
  // A picture that the test's decoder treats as its name says.
  std::string file(const std::string& name) {
    return _folder.write(name, samples::bmpFile(quartered(16, 16), 72));
  }

  // Asks for it; its name is recorded when it is delivered.
  Ticket ask(PictureLoader& loader, const std::string& name,
             Priority priority = Priority::visible) {
    return loader.request(file(name), small, priority, [this, name](const Outcome& outcome) {
      delivered.push_back(name);
      outcomes[name] = outcome;
    });
  }

  TestFolder _folder;
  std::vector<std::string> delivered;
  std::map<std::string, Outcome> outcomes;
};

TEST_F(PictureLoaderTest, DeliversInTheMainLoop) {
  PictureLoader loader(settings());
  ask(loader, "a");
  EXPECT_TRUE(delivered.empty());
  pollfd news{loader.wakeDescriptor(), POLLIN, 0};
  ASSERT_EQ(poll(&news, 1, 60'000), 1);
  EXPECT_TRUE(delivered.empty());
  loader.deliverFinished();
  ASSERT_THAT(delivered, ElementsAre("a"));
  const Outcome& outcome = outcomes["a"];
  ASSERT_EQ(outcome.kind, Kind::decoded) << outcome.reason;
  EXPECT_EQ(outcome.picture->width, 8);
  EXPECT_EQ(quarters(*outcome.picture), "red green blue white");
  EXPECT_EQ(poll(&news, 1, 0), 0) << "nothing is left to deliver";
}

TEST_F(PictureLoaderTest, GivesTheDecodersReason) {
  PictureLoader loader(settings());
  Outcome outcome;
  loader.request(_folder.path("none"), small, Priority::visible,
                 [&](const Outcome& each) { outcome = each; });
  ask(loader, "throw");
  ASSERT_TRUE(loader.waitUntilIdle(longTime));
  EXPECT_EQ(outcome.kind, Kind::failed);
  EXPECT_EQ(outcome.reason, "No such file or directory");
  EXPECT_EQ(outcomes["throw"].reason, "thrown");
}

TEST_F(PictureLoaderTest, DecodesSeveralAtATime) {
  PictureLoader loader(settings(3));
  for (const char* name : {"slow a", "slow b", "slow c"}) ask(loader, name);
  ASSERT_TRUE(loader.waitUntilIdle(longTime));
  EXPECT_EQ(delivered.size(), 3U);
  EXPECT_EQ(children().size(), 3U);
}

TEST_F(PictureLoaderTest, TakesTheMostUrgentFirst) {
  PictureLoader loader(settings());
  ask(loader, "slow first");
  ask(loader, "later", Priority::later);
  ask(loader, "soon", Priority::soon);
  ask(loader, "visible a");
  ask(loader, "visible b");
  ASSERT_TRUE(loader.waitUntilIdle(longTime));
  EXPECT_THAT(delivered, ElementsAre("slow first", "visible a", "visible b", "soon", "later"));
}

TEST_F(PictureLoaderTest, FollowsChangedPriorities) {
  PictureLoader loader(settings());
  ask(loader, "slow first");
  const Ticket scrolledAway = ask(loader, "was visible");
  ask(loader, "soon", Priority::soon);
  const Ticket scrolledIn = ask(loader, "was later", Priority::later);
  loader.setPriority(scrolledAway, Priority::later);
  loader.setPriority(scrolledIn, Priority::visible);
  ASSERT_TRUE(loader.waitUntilIdle(longTime));
  EXPECT_THAT(delivered, ElementsAre("slow first", "was later", "soon", "was visible"));
}

TEST_F(PictureLoaderTest, ForgetsWhatIsCancelled) {
  PictureLoader loader(settings());
  const Ticket running = ask(loader, "slow first");
  const Ticket waiting = ask(loader, "waiting");
  ask(loader, "other");
  loader.cancel(waiting);
  std::this_thread::sleep_for(100ms);
  loader.cancel(running);
  loader.cancel(running);  // once more has no effect
  loader.cancel(Ticket{0});
  ASSERT_TRUE(loader.waitUntilIdle(longTime));
  EXPECT_THAT(delivered, ElementsAre("other"));
}

TEST_F(PictureLoaderTest, LetsCallbacksAskAndCancel) {
  PictureLoader loader(settings());
  Ticket second{};
  loader.request(file("first"), small, Priority::visible, [&](const Outcome&) {
    loader.cancel(second);
    ask(loader, "third");
  });
  second = ask(loader, "second");
  ASSERT_TRUE(loader.waitUntilIdle(longTime));
  EXPECT_THAT(delivered, ElementsAre("third"));
}

TEST_F(PictureLoaderTest, DecodesOnceForAllWhoAsk) {
  PictureLoader loader(settings());
  ask(loader, "slow first");
  const std::string path = file("same");
  std::vector<SharedPicture> pictures;
  const auto keep = [&](const Outcome& outcome) { pictures.push_back(outcome.picture); };
  loader.request(path, small, Priority::later, keep);
  loader.request(path, small, Priority::later, keep);
  ASSERT_TRUE(loader.waitUntilIdle(longTime));
  loader.request(path, small, Priority::later, keep);
  EXPECT_EQ(pictures.size(), 2U) << "not before the next turn";
  ASSERT_TRUE(loader.waitUntilIdle(longTime));
  ASSERT_EQ(pictures.size(), 3U);
  EXPECT_NE(pictures[0], nullptr);
  EXPECT_EQ(pictures[0], pictures[1]);
  EXPECT_EQ(pictures[0], pictures[2]);
  EXPECT_EQ(loader.find(path, small), pictures[0]);
}

TEST_F(PictureLoaderTest, DecodesAnewWhenTheFileHasChanged) {
  PictureLoader loader(settings());
  ask(loader, "a");
  ASSERT_TRUE(loader.waitUntilIdle(longTime));
  const auto path = _folder.path("a");
  ASSERT_NE(loader.find(path, small), nullptr);
  std::filesystem::last_write_time(path, std::filesystem::last_write_time(path) + 5s);
  EXPECT_EQ(loader.find(path, small), nullptr);
}

TEST_F(PictureLoaderTest, StopsADecoderThatTakesTooLong) {
  auto limited = settings();
  limited.processorTime = 300ms;
  limited.sleepyLooks = 10;
  PictureLoader loader(limited);
  ask(loader, "hang");
  ask(loader, "spin");
  ask(loader, "good");
  ASSERT_TRUE(loader.waitUntilIdle(longTime));
  EXPECT_EQ(outcomes["hang"].kind, Kind::timedOut);
  EXPECT_EQ(outcomes["spin"].kind, Kind::timedOut);
  EXPECT_EQ(outcomes["hang"].reason, "the decoder fell asleep");
  EXPECT_EQ(outcomes["spin"].reason, "decoding took too long");
  EXPECT_EQ(outcomes["good"].kind, Kind::decoded);
}

TEST_F(PictureLoaderTest, StopsADecoderThatWasStopped) {
  auto limited = settings();
  limited.sleepyLooks = 10;
  PictureLoader loader(limited);
  ask(loader, "a");
  ASSERT_TRUE(loader.waitUntilIdle(longTime));
  ASSERT_EQ(children().size(), 1U);
  kill(children().front(), SIGSTOP);
  ask(loader, "b");
  ask(loader, "c");
  ASSERT_TRUE(loader.waitUntilIdle(longTime));
  EXPECT_EQ(outcomes["b"].kind, Kind::timedOut);
  EXPECT_EQ(outcomes["c"].kind, Kind::decoded);
}

TEST_F(PictureLoaderTest, OutlivesDecodersThatCrash) {
  PictureLoader loader(settings());
  for (const char* name : {"good a", "crash", "exit", "good b"}) ask(loader, name);
  ASSERT_TRUE(loader.waitUntilIdle(longTime));
  for (const char* name : {"crash", "exit"}) {
    EXPECT_EQ(outcomes[name].kind, Kind::failed) << name;
    EXPECT_EQ(outcomes[name].reason, "the decoder crashed") << name;
  }
  EXPECT_EQ(outcomes["good a"].kind, Kind::decoded);
  EXPECT_EQ(outcomes["good b"].kind, Kind::decoded);
}

TEST_F(PictureLoaderTest, HasDecodersThatOpenNothing) {
  PictureLoader loader(settings());
  ask(loader, "open");
  ASSERT_TRUE(loader.waitUntilIdle(longTime));
  EXPECT_EQ(outcomes["open"].reason, "refused");
}

TEST_F(PictureLoaderTest, OutlivesADecoderThatIsKilledAtWork) {
  PictureLoader loader(settings());
  ask(loader, "first");
  ASSERT_TRUE(loader.waitUntilIdle(longTime));
  ask(loader, "slow");
  std::this_thread::sleep_for(100ms);
  ASSERT_EQ(children().size(), 1U);
  kill(children().front(), SIGKILL);
  ASSERT_TRUE(loader.waitUntilIdle(longTime));
  EXPECT_EQ(outcomes["slow"].kind, Kind::decoded) << outcomes["slow"].reason;
}

TEST_F(PictureLoaderTest, ReplacesADecoderThatDiedWhileIdle) {
  PictureLoader loader(settings());
  ask(loader, "a");
  ASSERT_TRUE(loader.waitUntilIdle(longTime));
  for (const pid_t child : children()) kill(child, SIGKILL);
  ask(loader, "b");
  ASSERT_TRUE(loader.waitUntilIdle(longTime));
  EXPECT_EQ(outcomes["b"].kind, Kind::decoded);
}

TEST_F(PictureLoaderTest, StopsADecoderThatTakesTooMuchMemory) {
  if (workers::isSanitized) GTEST_SKIP() << "memory cannot be limited under a sanitizer";
  PictureLoader loader(settings());
  ask(loader, "memory");
  ask(loader, "good");
  ASSERT_TRUE(loader.waitUntilIdle(longTime));
  EXPECT_EQ(outcomes["memory"].reason, "not enough memory");
  EXPECT_EQ(outcomes["good"].kind, Kind::decoded);
}

TEST_F(PictureLoaderTest, SaysThatTheDecoderCannotBeStarted) {
  struct Case {
    std::vector<std::string> command;
    const char* reason;
  };
  const Case cases[] = {
      {{"/none/decoder"}, "the decoder cannot be started: No such file or directory"},
      {{"/proc/self/exe", "--gtest_list_tests"}, "the decoder does not start"},
      {{"/bin/false"}, "the decoder does not start"},
  };
  for (const Case& each : cases) {
    auto wrong = settings();
    wrong.command = each.command;
    PictureLoader loader(wrong);
    ask(loader, "a");
    ask(loader, "b");
    ASSERT_TRUE(loader.waitUntilIdle(longTime));
    EXPECT_EQ(outcomes["a"].reason, each.reason);
    EXPECT_EQ(outcomes["b"].reason, each.reason);
  }
}

TEST_F(PictureLoaderTest, GivesUpWaitingWhenTheTimeIsOver) {
  PictureLoader loader(settings());
  ask(loader, "hang");
  EXPECT_FALSE(loader.waitUntilIdle(50ms));
  EXPECT_TRUE(delivered.empty());
}

TEST_F(PictureLoaderTest, LeavesNoProcessAndNoDescriptorBehind) {
  const auto before = openDescriptors();
  {
    auto limited = settings(2);
    limited.sleepyLooks = 10;
    PictureLoader loader(limited);
    for (const char* name : {"a", "hang", "crash", "b", "exit"}) ask(loader, name);
    ASSERT_TRUE(loader.waitUntilIdle(longTime));
    ask(loader, "hang more");
    ask(loader, "slow");
  }
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a child is left";
  EXPECT_EQ(openDescriptors(), before);
  EXPECT_EQ(delivered.size(), 5U);
}

TEST_F(PictureLoaderTest, WorksFromAnyFolderWithRelativePaths) {
  const auto home = std::filesystem::current_path();
  file("relative");
  std::filesystem::current_path(_folder.path(""));
  {
    PictureLoader loader(settings());
    SharedPicture picture;
    loader.request("relative", small, Priority::visible,
                   [&](const Outcome& outcome) { picture = outcome.picture; });
    std::filesystem::current_path("/");
    EXPECT_TRUE(loader.waitUntilIdle(longTime));
    EXPECT_NE(picture, nullptr);
  }
  std::filesystem::current_path(home);
}

TEST_F(PictureLoaderTest, KeepsToItsCache) {
  auto tight = settings();
  tight.cacheBytes = 3000;  // five pictures of 256 bytes and their keys
  PictureLoader loader(tight);
  for (int number = 0; number < 20; ++number) ask(loader, std::to_string(number));
  ASSERT_TRUE(loader.waitUntilIdle(longTime));
  EXPECT_EQ(loader.find(_folder.path("0"), small), nullptr);
  EXPECT_NE(loader.find(_folder.path("19"), small), nullptr);
}

TEST_F(PictureLoaderTest, GetsThroughThousandsOfBrokenFiles) {
  PictureLoader loader(settings(2));
  const std::string path = _folder.write("broken.jpg", {0xFF, 0xD8, 0xFF, 0xE0, 0, 4, 1, 2});
  int failures = 0;
  for (int width = 1; width <= 3000; ++width) {
    loader.request(path, {width, 10, Request::Fit::fit}, Priority::visible,
                   [&](const Outcome& outcome) { failures += outcome.kind == Kind::failed; });
  }
  ASSERT_TRUE(loader.waitUntilIdle(longTime));
  EXPECT_EQ(failures, 3000);
}

}  // namespace

}  // namespace desktop::pictures
