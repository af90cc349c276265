// SPDX-License-Identifier: MIT
#include "desktop/runtime/darwin_notifications.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "bridge/runtime.h"
#include "foundation/notification_core.h"

namespace desktop::runtime {
namespace {

std::vector<std::string> heard;

CFStringRef name(const char* text) {
  return toCFString(send<Object, "stringWithUTF8String:">(classNamed<"NSString">(), text));
}

void note(CFNotificationCenterRef centre, void* observer, CFStringRef posted, const void* object,
          CFDictionaryRef userInfo) {
  EXPECT_EQ(centre, CFNotificationCenterGetDarwinNotifyCenter());
  EXPECT_EQ(observer, nullptr);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(userInfo, nullptr);
  heard.emplace_back(send<const char*, "UTF8String">(fromCFString(posted)));
}

class DarwinNotificationsTest : public testing::Test {
 protected:
  DarwinNotificationsTest() {
    std::string pattern = testing::TempDir() + "darwinXXXXXX";
    root = mkdtemp(pattern.data());
    heard.clear();
  }
  ~DarwinNotificationsTest() override { std::filesystem::remove_all(root); }

  const AutoreleasePool pool;
  std::string root;
};

TEST_F(DarwinNotificationsTest, ReachObserversAddedBeforeAndAfterOpening) {
  const CFNotificationCenterRef centre = CFNotificationCenterGetDarwinNotifyCenter();
  ASSERT_NE(centre, nullptr);
  CFNotificationCenterAddObserver(centre, nullptr, &note, name("com.example/early"), nullptr,
                                  suspensionBehaviourCoalesce);
  openDarwinNotifications(foundation::notificationFolder(root));
  CFNotificationCenterAddObserver(centre, nullptr, &note, name("com.example/late"), nullptr,
                                  suspensionBehaviourCoalesce);
  ASSERT_GE(darwinNotificationDescriptor(), 0);
  CFNotificationCenterPostNotification(centre, name("com.example/late"), nullptr, nullptr, 1);
  CFNotificationCenterPostNotification(centre, name("com.example/early"), nullptr, nullptr, 1);
  CFNotificationCenterPostNotification(centre, name("com.example/late"), nullptr, nullptr, 1);
  EXPECT_EQ(deliverDarwinNotifications(), 2);
  EXPECT_EQ(heard, (std::vector<std::string>{"com.example/late", "com.example/early"}));
}

TEST_F(DarwinNotificationsTest, RecordsEachObserverAsItWasAdded) {
  const std::size_t before = darwinObservers().size();
  CFNotificationCenterAddObserver(CFNotificationCenterGetDarwinNotifyCenter(), nullptr, &note,
                                  name("com.example/recorded"), nullptr, 2);
  ASSERT_EQ(darwinObservers().size(), before + 1);
  const DarwinObserver& added = darwinObservers().back();
  EXPECT_EQ(added.name, "com.example/recorded");
  EXPECT_EQ(added.callback, &note);
  EXPECT_EQ(added.observer, nullptr);
  EXPECT_EQ(added.object, nullptr);
  EXPECT_EQ(added.suspensionBehaviour, 2);
}

TEST_F(DarwinNotificationsTest, NothingBreaksWithoutNameOrCallback) {
  const CFNotificationCenterRef centre = CFNotificationCenterGetDarwinNotifyCenter();
  const std::size_t before = darwinObservers().size();
  CFNotificationCenterAddObserver(centre, nullptr, nullptr, name("x"), nullptr, 2);
  CFNotificationCenterAddObserver(centre, nullptr, &note, nullptr, nullptr, 2);
  CFNotificationCenterPostNotification(centre, nullptr, nullptr, nullptr, 1);
  EXPECT_EQ(darwinObservers().size(), before);
}

TEST(CoreFoundationVersion, IsThatOfThePhonesSystem) {
  EXPECT_GE(kCFCoreFoundationVersionNumber, 1556.0);
  EXPECT_LT(kCFCoreFoundationVersionNumber, 1600.0);
}

}  // namespace
}  // namespace desktop::runtime
