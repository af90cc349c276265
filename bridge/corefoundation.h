// SPDX-License-Identifier: MIT
//
// The few C functions of CoreFoundation that are used: the system-wide notification centre and the
// version number. An NSString is a CFStringRef as it stands.
#pragma once

#include "bridge/runtime/object.h"

struct CFNotificationCenter;
using CFNotificationCenterRef = CFNotificationCenter*;
using CFStringRef = const struct CFString*;
using CFDictionaryRef = const struct CFDictionary*;
using CFIndex = long;

// What a post calls on the thread that runs the main loop.
using CFNotificationCallback = void (*)(CFNotificationCenterRef centre, void* observer,
                                        CFStringRef name, const void* object,
                                        CFDictionaryRef userInfo);

#pragma GCC visibility push(default)
extern "C" {
// Takes a reference away from any object, an Objective-C one or not. REQUIRES: not null.
void CFRelease(const void* object);

extern double kCFCoreFoundationVersionNumber;  // 1348.0 with iOS 10, 1556.0 with iOS 12

CFNotificationCenterRef CFNotificationCenterGetDarwinNotifyCenter();
void CFNotificationCenterAddObserver(CFNotificationCenterRef centre, const void* observer,
                                     CFNotificationCallback callback, CFStringRef name,
                                     const void* object, CFIndex suspensionBehaviour);
void CFNotificationCenterPostNotification(CFNotificationCenterRef centre, CFStringRef name,
                                          const void* object, CFDictionaryRef userInfo,
                                          unsigned char deliverImmediately);
}
#pragma GCC visibility pop

namespace bridge {

// While the application is suspended, repeated posts become one delivery at resume.
inline constexpr CFIndex suspensionBehaviourCoalesce = 2;

inline Object fromCFString(CFStringRef text) {
  return Object(reinterpret_cast<id>(const_cast<CFString*>(text)));
}
inline CFStringRef toCFString(Object string) {
  return reinterpret_cast<CFStringRef>(string.get());
}

}  // namespace bridge
