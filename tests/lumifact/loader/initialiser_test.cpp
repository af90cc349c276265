// SPDX-License-Identifier: MIT
//
// What happens while the extension is loaded into the photo application.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/runtime/darwin_notifications.h"
#include "desktop/runtime/method_hooks.h"
#include "tests/bridge/victims.h"
#include "tests/lumifact/loader/loaded_extension.h"

namespace lumifact::host {
namespace {

using testing::Contains;
using testing::StartsWith;

std::vector<std::string> stepsBeforeTheHooks() {
  const std::vector<std::string>& events = loadedExtension().events;
  return {events.begin(), std::ranges::find_if(events, [](const std::string& event) {
            return event.starts_with("method ");
          })};
}

TEST(Initialiser, WorksInOnePoolInTheStatedOrder) {
  EXPECT_THAT(stepsBeforeTheHooks(),
              testing::ElementsAre("pool opened", "cache made",
                                   "read /var/mobile/Library/Preferences/net.korvu.lumifact.plist",
                                   "observer added", "identifier asked for"));
  EXPECT_EQ(loadedExtension().events.back(), "pool closed");
}

TEST(Initialiser, AppliesTheRowsInTheirOrderWithoutThoseOfAMissingClass) {
  std::vector<std::string> applied;
  for (const std::string& event : loadedExtension().events)
    if (event.starts_with("method ")) applied.push_back(event);
  std::vector<std::string> stated;
  for (const bridge::HookRow& row : loadedExtension().probe->rows)
    if (std::string_view(row.className) != missingClass)
      stated.push_back(std::string("method ") + row.className + " " + row.selector + " " +
                       row.encoding);
  EXPECT_EQ(stated.size(), 29U);
  EXPECT_EQ(applied, stated);
}

TEST(Initialiser, HooksEveryReplacedMethodOnItsOwnClass) {
  using desktop::runtime::HookOutcome;
  std::vector<desktop::runtime::MethodHook> stated;
  for (const bridge::HookRow& row : rowsOf(bridge::HookKind::replaced)) {
    if (std::string_view(row.className) == missingClass) continue;
    const bool isInherited = hostMethodOf(row).definedBy != nullptr;
    stated.push_back({row.className, row.selector,
                      isInherited ? HookOutcome::extendedInherited : HookOutcome::replacedOwn});
  }
  loadedExtension();
  EXPECT_EQ(desktop::runtime::methodHooks(), stated);
}

TEST(Initialiser, LeavesTheSiblingsOfAnInheritedHookAlone) {
  const auto current = [](const char* className) {
    return method_getImplementation(
        class_getInstanceMethod(objc_getClass(className), sel_registerName("viewWillAppear:")));
  };
  EXPECT_NE(loadedExtension().siblingBefore, nullptr);
  EXPECT_EQ(current("HostSiblingViewController"), loadedExtension().siblingBefore);
  EXPECT_EQ(current("HostViewController"), loadedExtension().siblingBefore);
  EXPECT_NE(current("PUAlbumListViewController"), loadedExtension().siblingBefore);
}

TEST(Initialiser, AddsOneObserverForNobodyInParticular) {
  loadedExtension();
  const auto& observers = desktop::runtime::darwinObservers();
  ASSERT_EQ(observers.size(), 1U);
  EXPECT_EQ(observers[0].name, "net.korvu.lumifact/preferences");
  EXPECT_EQ(observers[0].observer, nullptr);
  EXPECT_EQ(observers[0].object, nullptr);
  EXPECT_EQ(observers[0].suspensionBehaviour, 2);
}

TEST(Initialiser, LoadsNoFrameworkIntoThePhotoApplication) {
  EXPECT_THAT(loadedExtension().events, testing::Not(Contains(StartsWith("load "))));
}

TEST(Initialiser, HasTheUsersSettingsBeforeTheFirstHookedCall) {
  EXPECT_EQ(loadedExtension().settingsAfter.fontSize, 21);
}

}  // namespace
}  // namespace lumifact::host
