// SPDX-License-Identifier: MIT
#include "foundation/notification_core.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <thread>

namespace foundation {
namespace {

class NotificationTest : public testing::Test {
 protected:
  NotificationTest() {
    std::string pattern = testing::TempDir() + "notificationsXXXXXX";
    root = mkdtemp(pattern.data());
    folder = notificationFolder(root);
  }
  ~NotificationTest() override { std::filesystem::remove_all(root); }

  // Notes each delivery of the name.
  void observe(NotificationCentre& centre, const std::string& name) {
    ASSERT_TRUE(centre.addObserver(
        name, [this](std::string_view delivered) { heard.emplace_back(delivered); }));
  }

  static bool isReadable(const NotificationCentre& centre, int milliseconds = 0) {
    pollfd descriptor = {centre.descriptor(), POLLIN, 0};
    return poll(&descriptor, 1, milliseconds) == 1;
  }

  std::string root;
  std::string folder;
  std::vector<std::string> heard;
};

using Names = std::vector<std::string>;

TEST_F(NotificationTest, IsHeardByTheProcessThatPosts) {
  NotificationCentre centre(folder);
  observe(centre, "com.example.app/changed");
  EXPECT_FALSE(isReadable(centre));
  ASSERT_TRUE(postNotification(folder, "com.example.app/changed"));
  EXPECT_TRUE(isReadable(centre));
  EXPECT_EQ(centre.deliver(), 1);
  EXPECT_EQ(heard, Names{"com.example.app/changed"});
  EXPECT_FALSE(isReadable(centre));
}

TEST_F(NotificationTest, PostsThatWaitTogetherAreOneDelivery) {
  NotificationCentre centre(folder);
  observe(centre, "changed");
  observe(centre, "other");
  for (int round = 0; round < 1000; ++round) {
    ASSERT_TRUE(postNotification(folder, "other"));
    ASSERT_TRUE(postNotification(folder, "changed"));
  }
  EXPECT_EQ(centre.deliver(), 2);
  EXPECT_EQ(heard, (Names{"other", "changed"}));
  EXPECT_EQ(centre.deliver(), 0);
}

TEST_F(NotificationTest, NamesDoNotReachEachOther) {
  NotificationCentre centre(folder);
  const Names names = {"a", "a/b", "a%2Fb", "..", ".", "", "../a", "A", std::string("a\0b", 3)};
  for (const std::string& name : names) observe(centre, name);
  for (const std::string& name : names) {
    heard.clear();
    ASSERT_TRUE(postNotification(folder, name)) << name;
    centre.deliver();
    EXPECT_EQ(heard, Names{name});
  }
}

TEST_F(NotificationTest, PostWithoutAnyObserverIsNoErrorAndLeavesNothing) {
  EXPECT_TRUE(postNotification(folder, "unheard"));
  EXPECT_FALSE(std::filesystem::exists(root + "/var"));
}

TEST_F(NotificationTest, WhatWasPostedBeforeObservingIsNotHeard) {
  NotificationCentre first(folder);
  observe(first, "changed");
  ASSERT_TRUE(postNotification(folder, "changed"));
  NotificationCentre late(folder);
  observe(late, "changed");
  EXPECT_EQ(late.deliver(), 0);
}

TEST_F(NotificationTest, SeveralObserversOfOneNameAreAllCalled) {
  NotificationCentre centre(folder);
  observe(centre, "changed");
  observe(centre, "changed");
  ASSERT_TRUE(postNotification(folder, "changed"));
  EXPECT_EQ(centre.deliver(), 1);
  EXPECT_EQ(heard, (Names{"changed", "changed"}));
}

TEST_F(NotificationTest, CallbacksMayObserveAndPost) {
  NotificationCentre centre(folder);
  ASSERT_TRUE(centre.addObserver("first", [&](std::string_view) {
    observe(centre, "second");
    ASSERT_TRUE(postNotification(folder, "second"));
  }));
  ASSERT_TRUE(postNotification(folder, "first"));
  EXPECT_EQ(centre.deliver(), 1);
  EXPECT_EQ(centre.deliver(), 1);
  EXPECT_EQ(heard, Names{"second"});
}

TEST_F(NotificationTest, ReachesAnotherProcessThatSleepsInItsLoop) {
  int ready[2];
  ASSERT_EQ(pipe(ready), 0);
  const pid_t child = fork();
  if (child == 0) {
    NotificationCentre centre(folder);
    int calls = 0;
    if (!centre.addObserver("changed", [&calls](std::string_view) { ++calls; })) _exit(2);
    if (write(ready[1], "r", 1) != 1) _exit(3);
    if (!isReadable(centre, 10'000)) _exit(4);
    centre.deliver();
    _exit(calls == 1 ? 0 : 5);
  }
  char byte = 0;
  ASSERT_EQ(read(ready[0], &byte, 1), 1);
  ASSERT_TRUE(postNotification(folder, "changed"));
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(WEXITSTATUS(status), 0);
}

TEST_F(NotificationTest, AnObserverThatWasKilledTroublesNobody) {
  int ready[2];
  ASSERT_EQ(pipe(ready), 0);
  const pid_t child = fork();
  if (child == 0) {
    NotificationCentre centre(folder);
    if (!centre.addObserver("changed", [](std::string_view) {})) _exit(2);
    if (write(ready[1], "r", 1) != 1) _exit(3);
    while (true) pause();
  }
  char byte = 0;
  ASSERT_EQ(read(ready[0], &byte, 1), 1);
  kill(child, SIGKILL);
  ASSERT_EQ(waitpid(child, nullptr, 0), child);
  ASSERT_TRUE(postNotification(folder, "changed"));
  NotificationCentre centre(folder);
  observe(centre, "changed");
  ASSERT_TRUE(postNotification(folder, "changed"));
  EXPECT_EQ(centre.deliver(), 1);
}

TEST_F(NotificationTest, AFolderThatIsClearedAwayIsMadeAnew) {
  NotificationCentre centre(folder);
  observe(centre, "changed");
  std::filesystem::remove_all(root + "/var");
  EXPECT_EQ(centre.deliver(), 0);
  ASSERT_TRUE(postNotification(folder, "changed"));
  EXPECT_EQ(centre.deliver(), 1);
}

TEST_F(NotificationTest, RootsAreApart) {
  NotificationCentre centre(folder);
  observe(centre, "changed");
  ASSERT_TRUE(postNotification(notificationFolder(root + "/other"), "changed"));
  EXPECT_EQ(centre.deliver(), 0);
}

TEST_F(NotificationTest, TheFolderIsForTheUserAlone) {
  NotificationCentre centre(folder);
  observe(centre, "changed");
  struct stat status = {};
  ASSERT_EQ(stat(folder.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0700U);
}

TEST_F(NotificationTest, WhatCannotBeDoneIsSaid) {
  NotificationCentre centre(folder);
  const std::string longName(300, 'x');
  EXPECT_FALSE(centre.addObserver(longName, [](std::string_view) {}));
  EXPECT_FALSE(postNotification(folder, longName));
  NotificationCentre nowhere("/proc/no such folder/notifications");
  const auto added = nowhere.addObserver("changed", [](std::string_view) {});
  ASSERT_FALSE(added);
  EXPECT_FALSE(added.error().reason.empty());
}

TEST_F(NotificationTest, ALinkOrPipeInAFilesPlaceIsNotWrittenThrough) {
  std::filesystem::create_directories(folder);
  std::filesystem::create_symlink(root + "/elsewhere", folder + "/changed");
  EXPECT_FALSE(postNotification(folder, "changed"));
  EXPECT_FALSE(std::filesystem::exists(root + "/elsewhere"));
  ASSERT_EQ(mkfifo((folder + "/piped").c_str(), 0600), 0);
  EXPECT_FALSE(postNotification(folder, "piped"));
}

TEST_F(NotificationTest, DeliversWithinMilliseconds) {
  NotificationCentre centre(folder);
  observe(centre, "changed");
  const auto start = std::chrono::steady_clock::now();
  std::thread poster([this] { ASSERT_TRUE(postNotification(folder, "changed")); });
  EXPECT_TRUE(isReadable(centre, 5000));
  poster.join();
  EXPECT_EQ(centre.deliver(), 1);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
}

}  // namespace
}  // namespace foundation
