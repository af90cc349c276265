// SPDX-License-Identifier: MIT
#include "desktop/runtime/darwin_notifications.h"

#include <memory>

#include "bridge/foundation/ns_string.h"
#include "desktop/platform.h"
#include "foundation/notification_core.h"

namespace desktop::runtime {
namespace {

struct DarwinCentre {
  std::string folder;
  std::unique_ptr<foundation::NotificationCentre> core;
  std::vector<DarwinObserver> observers;
};

DarwinCentre& centre() {
  static auto& kept = *new DarwinCentre;
  return kept;
}

CFNotificationCenterRef centreReference() {
  return reinterpret_cast<CFNotificationCenterRef>(&centre());
}

Object makeString(const std::string& text) {
  return NSString::make(text.c_str());
}

std::string textOf(CFStringRef string) {
  return NSString(fromCFString(string).get()).utf8();
}

void call(const DarwinObserver& observer) {
  const AutoreleasePool pool;
  observer.callback(centreReference(), const_cast<void*>(observer.observer),
                    toCFString(makeString(observer.name)), observer.object, nullptr);
}

void listen(const DarwinObserver& observer) {
  if (!centre().core) return;
  const auto added =
      centre().core->addObserver(observer.name, [observer](std::string_view) { call(observer); });
  static_cast<void>(static_cast<bool>(added));  // an observer that cannot listen stays inert
}

}  // namespace

void openDarwinNotifications(const std::string& folder) {
  centre().folder = folder;
  centre().core = std::make_unique<foundation::NotificationCentre>(folder);
  for (const DarwinObserver& observer : centre().observers) listen(observer);
}

int darwinNotificationDescriptor() {
  return centre().core ? centre().core->descriptor() : -1;
}

int deliverDarwinNotifications() {
  return centre().core ? centre().core->deliver() : 0;
}

const std::vector<DarwinObserver>& darwinObservers() {
  return centre().observers;
}

}  // namespace desktop::runtime

using namespace desktop::runtime;

CFNotificationCenterRef CFNotificationCenterGetDarwinNotifyCenter() {
  return centreReference();
}

void CFNotificationCenterAddObserver(CFNotificationCenterRef, const void* observer,
                                     CFNotificationCallback callback, CFStringRef name,
                                     const void* object, CFIndex suspensionBehaviour) {
  if (!callback || !name) return;
  centre().observers.push_back({observer, callback, textOf(name), object, suspensionBehaviour});
  listen(centre().observers.back());
}

void CFNotificationCenterPostNotification(CFNotificationCenterRef, CFStringRef name, const void*,
                                          CFDictionaryRef, unsigned char) {
  if (!centre().core || !name) return;
  const auto posted = foundation::postNotification(centre().folder, textOf(name));
  static_cast<void>(static_cast<bool>(posted));  // the platform's function reports nothing either
}
