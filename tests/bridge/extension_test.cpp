// SPDX-License-Identifier: MIT
//
// The bridge in its real place: in a library that a host maps, whose classes it hooks.
#include <dlfcn.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "bridge/block.h"
#include "desktop/loader/extension_loader.h"
#include "desktop/runtime/darwin_notifications.h"
#include "desktop/runtime/debug_log.h"
#include "foundation/notification_core.h"
#include "tests/bridge/victims.h"

namespace bridge {
namespace {

using DoneBlock = Block<void(int)>;

constexpr char filter[] =
    "<plist version=\"1.0\"><dict><key>Filter</key><dict><key>Bundles</key><array>"
    "<string>com.example.host</string></array></dict></dict></plist>";

class ExtensionTest : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    victims::ClassMaker("HostThing")
        .method(
            "value", +[](id, SEL) { return 100; })
        .method(
            "run:", +[](id, SEL, const BlockHeader* done) { DoneBlock::retain(done)(7); })
        .build();
    std::string pattern = testing::TempDir() + "hookingXXXXXX";
    root() = mkdtemp(pattern.data());
    std::filesystem::copy_file(HOOKING_EXTENSION, root() + "/Hooking.so");
    std::ofstream(root() + "/Hooking.plist") << filter;
    desktop::runtime::openDarwinNotifications(foundation::notificationFolder(root()));
    const auto loaded = desktop::loader::loadExtensions(
        root(), {"com.example.host"},
        [](const std::string& path, const std::string& reason) { FAIL() << path << reason; });
    ASSERT_THAT(loaded, testing::SizeIs(1));
  }
  static void TearDownTestSuite() { std::filesystem::remove_all(root()); }

  static std::string& root() {
    static auto& kept = *new std::string;
    return kept;
  }

  const AutoreleasePool pool;
  Owned<Object> thing = victims::make(objc_getClass("HostThing"));
};

TEST_F(ExtensionTest, LivesInTheHostsMethods) {
  EXPECT_EQ((send<int, "value">(thing)), 142);
  EXPECT_EQ((send<int, "value">(thing)), 142);
  EXPECT_EQ((send<int, "extra:">(thing, 4)), 5);
}

TEST_F(ExtensionTest, HandsBlocksOnAndLogs) {
  std::vector<std::string> lines;
  desktop::runtime::setDebugLogSink(
      [&lines](const desktop::runtime::DebugLogLine& line) { lines.push_back(line.message()); });
  int seen = 0;
  send<void, "run:">(thing, DoneBlock([&seen](int number) { seen = number; }));
  desktop::runtime::setDebugLogSink({});
  EXPECT_EQ(seen, 7);
  EXPECT_THAT(lines, testing::ElementsAre("[HookingExtension:1] running"));
}

// Foundation's own functions would leave such blocks where they are.
TEST_F(ExtensionTest, BlocksAreCopiedByThePlatformsFunctionsForAllLibraries) {
  EXPECT_EQ(dlsym(RTLD_DEFAULT, "_Block_copy"), reinterpret_cast<void*>(&_Block_copy));
  EXPECT_EQ(dlsym(RTLD_DEFAULT, "_Block_release"), reinterpret_cast<void*>(&_Block_release));
  EXPECT_EQ(dlsym(RTLD_DEFAULT, "_NSConcreteStackBlock"),
            static_cast<void*>(&_NSConcreteStackBlock));
}

TEST_F(ExtensionTest, HearsNotificationsInTheHostsLoop) {
  const int before = send<int, "notified">(thing);
  ASSERT_TRUE(
      foundation::postNotification(foundation::notificationFolder(root()), "com.example/changed"));
  EXPECT_EQ((send<int, "notified">(thing)), before);
  EXPECT_EQ(desktop::runtime::deliverDarwinNotifications(), 1);
  EXPECT_EQ((send<int, "notified">(thing)), before + 1);
}

}  // namespace
}  // namespace bridge
