// SPDX-License-Identifier: MIT
//
// Two C functions that the extension calls are defined here once more: a library finds the
// program's first. They note the call and hand it on.
#include "tests/lumifact/loader/extension_host.h"

#include <dlfcn.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "bridge/foundation.h"
#include "bridge/hook.h"
#include "desktop/faces/foundation/foundation_runtime.h"
#include "desktop/runtime/darwin_notifications.h"
#include "desktop/runtime/method_hooks.h"
#include "foundation/notification_core.h"

namespace lumifact::host {
namespace {

using bridge::Stock;

struct Recording {
  bool isOn = false;
  int openPools = 0;
  std::size_t observers = 0;
  std::vector<std::string> events;
};

Recording& recording() {
  static auto& kept = *new Recording;
  return kept;
}

std::function<void()>& frameworkAction() {
  static auto& kept = *new std::function<void()>;
  return kept;
}

// Observers that were added since the last event stand before it.
void noteObservers() {
  for (; recording().observers < desktop::runtime::darwinObservers().size();
       ++recording().observers)
    recording().events.emplace_back("observer added");
}

void note(const std::string& event) {
  if (!recording().isOn) return;
  noteObservers();
  recording().events.push_back(event);
}

Stock<id(id, SEL)> stockPoolInit;
id NSAutoreleasePool_init(id self, SEL command) {
  if (recording().openPools++ == 0) note("pool opened");
  return stockPoolInit(self, command);
}

Stock<void(id, SEL)> stockPoolDealloc;
void NSAutoreleasePool_dealloc(id self, SEL command) {
  stockPoolDealloc(self, command);
  if (--recording().openPools == 0) note("pool closed");
}

Stock<id(id, SEL)> stockCacheInit;
id NSCache_init(id self, SEL command) {
  note("cache made");
  return stockCacheInit(self, command);
}

Stock<id(id, SEL, id)> stockReadList;
id NSDictionary_initWithContentsOfFile(id self, SEL command, id path) {
  note("read " + bridge::NSString(path).utf8());
  return stockReadList(self, command, path);
}

Stock<id(id, SEL)> stockBundleIdentifier;
id NSBundle_bundleIdentifier(id self, SEL command) {
  note("identifier asked for");
  return stockBundleIdentifier(self, command);
}

template <typename R, typename... Arguments>
void watch(const char* className, const char* selector, R (*watcher)(id, SEL, Arguments...),
           Stock<R(id, SEL, Arguments...)>& stock) {
  desktop::runtime::replaceMethod(objc_getClass(className), sel_registerName(selector),
                                  reinterpret_cast<IMP>(watcher), stock.slot());
}

void watchFoundation() {
  watch("NSAutoreleasePool", "init", &NSAutoreleasePool_init, stockPoolInit);
  watch("NSAutoreleasePool", "dealloc", &NSAutoreleasePool_dealloc, stockPoolDealloc);
  watch("NSCache", "init", &NSCache_init, stockCacheInit);
  watch("NSDictionary", "initWithContentsOfFile:", &NSDictionary_initWithContentsOfFile,
        stockReadList);
  watch("NSBundle", "bundleIdentifier", &NSBundle_bundleIdentifier, stockBundleIdentifier);
}

// Foundation's own classes give themselves methods too, when they are first used.
bool isOfFoundation(std::string_view className) {
  return className.starts_with("GS") || className.starts_with("NS");
}

template <typename Function>
Function next(const char* name) {
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

}  // namespace

ExtensionHost::ExtensionHost(const std::string& bundleIdentifier)
    : _root(std::filesystem::temp_directory_path() / "extension_hostXXXXXX") {
  mkdtemp(_root.data());
  desktop::faces::correctFoundation({foundation::DeviceRoot(root()), bundleIdentifier});
  desktop::runtime::openDarwinNotifications(foundation::notificationFolder(root()));
  const bridge::AutoreleasePool pool;
  bridge::NSBundle::mainBundle().bundleIdentifier();  // once before: the first time reads much
  watchFoundation();
}

ExtensionHost::~ExtensionHost() {
  std::filesystem::remove_all(_root);
}

std::string ExtensionHost::settingsFile() const {
  return root() + std::string(settingsPath);
}

void ExtensionHost::writeSettings(std::string_view bytes) const {
  removeSettings();
  std::ofstream(settingsFile(), std::ios::binary) << bytes;
}

void ExtensionHost::removeSettings() const {
  const std::filesystem::path file = settingsFile();
  std::filesystem::remove_all(file);
  std::filesystem::create_directories(file.parent_path());
}

std::vector<std::string> ExtensionHost::eventsOf(const std::function<void()>& load) const {
  recording() = {};
  recording().observers = desktop::runtime::darwinObservers().size();
  recording().isOn = true;
  load();
  noteObservers();
  recording().isOn = false;
  return recording().events;
}

void ExtensionHost::notify(std::string_view name) const {
  const bridge::AutoreleasePool pool;
  const auto posted = foundation::postNotification(foundation::notificationFolder(root()), name);
  static_cast<void>(static_cast<bool>(posted));
  desktop::runtime::deliverDarwinNotifications();
}

void onFrameworkLoad(std::function<void()> action) {
  frameworkAction() = std::move(action);
}

}  // namespace lumifact::host

extern "C" {

__attribute__((visibility("default"))) void* dlopen(const char* path, int mode) noexcept {
  using namespace lumifact::host;
  if (recording().isOn && path && std::string_view(path).starts_with("/System/")) {
    note("load " + std::string(path) + " " + std::to_string(mode));
    recording().isOn = false;
    if (frameworkAction()) frameworkAction()();
    recording().isOn = true;
  }
  return next<void* (*)(const char*, int)>("dlopen")(path, mode);
}

__attribute__((visibility("default"))) BOOL class_addMethod(Class aClass, SEL selector,
                                                            IMP implementation,
                                                            const char* encoding) {
  using namespace lumifact::host;
  if (!isOfFoundation(class_getName(aClass)))
    note(std::string("method ") + class_getName(aClass) + " " + sel_getName(selector) + " " +
         encoding);
  return next<BOOL (*)(Class, SEL, IMP, const char*)>("class_addMethod")(aClass, selector,
                                                                         implementation, encoding);
}
}
