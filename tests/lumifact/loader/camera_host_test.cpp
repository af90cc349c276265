// SPDX-License-Identifier: MIT
//
// The extension in the camera, whose photo classes come with a framework that it loads late.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "bridge/corefoundation.h"
#include "desktop/loader/extension_loader.h"
#include "desktop/runtime/method_hooks.h"
#include "tests/lumifact/loader/extension_host.h"
#include "tests/lumifact/loader/host_classes.h"

namespace lumifact::host {
namespace {

struct Camera {
  ExtensionHost host{"com.apple.camera"};
  std::vector<std::string> loaded;
  std::vector<std::string> problems;
  std::vector<std::string> events;
};

const Camera& camera() {
  static const Camera& kept = []() -> Camera& {
    static Camera camera;
    onFrameworkLoad([] { registerHostClasses(); });
    camera.events = camera.host.eventsOf([&] {
      camera.loaded = desktop::loader::loadExtensions(
          EXTENSIONS_FOLDER, {"com.apple.camera", kCFCoreFoundationVersionNumber},
          [](const std::string& path, const std::string& reason) {
            camera.problems.push_back(path + ": " + reason);
          });
    });
    return camera;
  }();
  return kept;
}

TEST(CameraHost, IsNamedByTheFilter) {
  EXPECT_THAT(camera().problems, testing::IsEmpty());
  EXPECT_THAT(camera().loaded, testing::ElementsAre(testing::EndsWith("/lumifact.so")));
}

TEST(CameraHost, LoadsThePhotoFrameworkLazilyBeforeTheFirstHook) {
  const std::vector<std::string>& events = camera().events;
  const auto firstMethod = std::ranges::find_if(
      events, [](const std::string& event) { return event.starts_with("method "); });
  ASSERT_NE(firstMethod, events.end());
  EXPECT_THAT(
      std::vector<std::string>(events.begin(), firstMethod),
      testing::ElementsAre("pool opened", "cache made",
                           "read /var/mobile/Library/Preferences/net.korvu.lumifact.plist",
                           "observer added", "identifier asked for",
                           "load /System/Library/Frameworks/PhotosUI.framework/PhotosUI 1"));
}

TEST(CameraHost, HasItsPhotoClassesHooked) {
  camera();
  EXPECT_EQ(desktop::runtime::methodHooks().size(), hostMethods().size());
  EXPECT_NE(class_getInstanceMethod(objc_getClass("PUOneUpViewController"),
                                    sel_registerName("LXViewExifData:")),
            nullptr);
}

}  // namespace
}  // namespace lumifact::host
