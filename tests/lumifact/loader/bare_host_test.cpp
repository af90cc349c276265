// SPDX-License-Identifier: MIT
//
// The extension in a host that has nothing of what it extends: no photo classes, no fonts.
#include <dlfcn.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "bridge/corefoundation.h"
#include "desktop/loader/extension_loader.h"
#include "desktop/runtime/method_hooks.h"
#include "tests/lumifact/loader/extension_host.h"
#include "tests/lumifact/loader/probe.h"

namespace lumifact::host {
namespace {

struct BareHost {
  ExtensionHost host{"com.example.other"};
  const Probe* probe = nullptr;
  std::string messages;
};

const BareHost& bareHost() {
  static const BareHost& kept = []() -> BareHost& {
    static BareHost bare;
    testing::internal::CaptureStderr();
    if (void* library = dlopen(PROBE_EXTENSION, RTLD_NOW | RTLD_LOCAL))
      bare.probe = reinterpret_cast<ExtensionProbe*>(dlsym(library, "extensionProbe"))();
    bare.messages = testing::internal::GetCapturedStderr();
    return bare;
  }();
  return kept;
}

TEST(BareHost, IsLeftAsItIs) {
  ASSERT_NE(bareHost().probe, nullptr);
  EXPECT_EQ(bareHost().messages, "");
  EXPECT_TRUE(desktop::runtime::methodHooks().empty());
}

TEST(BareHost, KeepsTheHeightOfALineThatTheExtensionStartsWith) {
  ASSERT_NE(bareHost().probe, nullptr);
  EXPECT_EQ(bareHost().probe->infoLineHeight, 16.0);
  EXPECT_EQ(bareHost().probe->settings, Settings{});
}

TEST(BareHost, IsNotNamedByTheFilter) {
  const auto loaded = desktop::loader::loadExtensions(
      EXTENSIONS_FOLDER, {"com.example.other", kCFCoreFoundationVersionNumber},
      [](const std::string& path, const std::string& reason) { FAIL() << path << reason; });
  EXPECT_THAT(loaded, testing::IsEmpty());
}

TEST(BareHost, IsOlderOrNewerThanTheFilterSays) {
  for (const double version : {1555.5, 1600.0}) {
    const auto loaded = desktop::loader::loadExtensions(
        EXTENSIONS_FOLDER, {"com.apple.mobileslideshow", version},
        [](const std::string& path, const std::string& reason) { FAIL() << path << reason; });
    EXPECT_THAT(loaded, testing::IsEmpty()) << version;
  }
}

}  // namespace
}  // namespace lumifact::host
