// SPDX-License-Identifier: MIT
//
// Two processes: this one, a host with the extension loaded, follows what the command-line tool
// writes.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "desktop/runtime/darwin_notifications.h"
#include "tests/lumifact/loader/loaded_extension.h"

namespace lumifact::host {
namespace {

constexpr int patience = 10'000;  // milliseconds

class SettingsCommandTest : public testing::Test {
 protected:
  // Runs "lumifact settings WORDS" to its end; answers its exit status.
  int runTool(std::vector<std::string> words) const {
    words.insert(words.begin(), {TOOL_PATH, "--root", host.root(), "settings"});
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t silence;
    posix_spawn_file_actions_init(&silence);
    for (const int stream : {STDOUT_FILENO, STDERR_FILENO})
      posix_spawn_file_actions_addopen(&silence, stream, "/dev/null", O_WRONLY, 0);
    pid_t tool = 0;
    int status = posix_spawn(&tool, TOOL_PATH, &silence, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&silence);
    if (status != 0) return -1;
    waitpid(tool, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  // Waits until something is posted and delivers it; answers the number of names delivered.
  static int turnMainLoop() {
    pollfd waiting = {desktop::runtime::darwinNotificationDescriptor(), POLLIN, 0};
    return poll(&waiting, 1, patience) == 1 ? desktop::runtime::deliverDarwinNotifications() : 0;
  }

  const ExtensionHost& host = loadedExtension().host;
  const Settings& settings = loadedExtension().probe->settings;
};

TEST_F(SettingsCommandTest, ARunningHostFollowsWhatIsWritten) {
  host.removeSettings();
  ASSERT_EQ(runTool({"set", "fontSize", "33"}), 0);
  EXPECT_EQ(turnMainLoop(), 1);
  EXPECT_EQ(settings.fontSize, 33);
  ASSERT_EQ(runTool({"set", "mapZoomLevel", "4.5"}), 0);
  EXPECT_EQ(turnMainLoop(), 1);
  EXPECT_EQ(settings.mapZoomLevel, 4.5);
  ASSERT_EQ(runTool({"set", "fontSize", "--unset"}), 0);
  EXPECT_EQ(turnMainLoop(), 1);
  EXPECT_EQ(settings.fontSize, 12);
  EXPECT_EQ(settings.mapZoomLevel, 4.5);
  ASSERT_EQ(runTool({"reset"}), 0);
  EXPECT_EQ(turnMainLoop(), 1);
  EXPECT_EQ(settings, Settings{});
}

TEST_F(SettingsCommandTest, WritesWhileTheHostIsBusyAreOneReload) {
  host.removeSettings();
  host.notify(settingsChangedNotification);
  ASSERT_EQ(runTool({"set", "viewType", "5"}), 0);
  ASSERT_EQ(runTool({"set", "viewType", "6"}), 0);
  EXPECT_NE(settings.viewType, 6);
  EXPECT_EQ(turnMainLoop(), 1);
  EXPECT_EQ(settings.viewType, 6);
  EXPECT_EQ(desktop::runtime::deliverDarwinNotifications(), 0);
}

TEST_F(SettingsCommandTest, ReadingAndWrongUseAnnounceNothing) {
  EXPECT_EQ(runTool({"get", "fontSize"}), 0);
  EXPECT_EQ(runTool({"set", "fontSize", "large"}), 2);
  EXPECT_EQ(desktop::runtime::deliverDarwinNotifications(), 0);
}

}  // namespace
}  // namespace lumifact::host
