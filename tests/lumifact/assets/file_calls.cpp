// SPDX-License-Identifier: MIT
#include "tests/lumifact/assets/file_calls.h"

#include "bridge/foundation.h"
#include "bridge/hook.h"
#include "desktop/runtime/method_hooks.h"

namespace lumifact::host {
namespace {

using bridge::NSString;
using bridge::Stock;

FileCalls& keptCalls() {
  static auto& kept = *new FileCalls;
  return kept;
}

Stock<BOOL(id, SEL, id)> stockExists;
BOOL fileExistsAtPath(id self, SEL command, id path) {
  keptCalls().existence.push_back(NSString(path).utf8());
  const bool areAllThere = keptCalls().sizeOfAll || keptCalls().areUnreadable;
  return areAllThere ? BOOL{1} : stockExists(self, command, path);
}

id attributesWithSize(std::uint64_t size) {
  const auto attributes = bridge::makeNew<bridge::NSMutableDictionary>();
  const auto number = bridge::send<bridge::NSNumber, "numberWithUnsignedLongLong:">(
      bridge::NSNumber::classObject(), static_cast<unsigned long long>(size));
  attributes->set(number, NSString::make("NSFileSize"));
  return bridge::Owned<bridge::Object>::retain(attributes.get()).autorelease().get();
}

Stock<id(id, SEL, id, void*)> stockAttributes;
id attributesOfItem(id self, SEL command, id path, void* error) {
  keptCalls().attributes.push_back(NSString(path).utf8());
  keptCalls().reasons += error ? 1 : 0;
  if (keptCalls().areUnreadable) return nullptr;
  const auto& size = keptCalls().sizeOfAll;
  return size ? attributesWithSize(*size) : stockAttributes(self, command, path, error);
}

void watch(const char* selector, auto watcher, auto& stock) {
  desktop::runtime::replaceMethod(objc_getClass("NSFileManager"), sel_registerName(selector),
                                  reinterpret_cast<IMP>(watcher), stock.slot());
}

}  // namespace

FileCalls& fileCalls() {
  static const bool isWatched = [] {
    watch("fileExistsAtPath:", &fileExistsAtPath, stockExists);
    watch("attributesOfItemAtPath:error:", &attributesOfItem, stockAttributes);
    return true;
  }();
  static_cast<void>(isWatched);
  return keptCalls();
}

}  // namespace lumifact::host
