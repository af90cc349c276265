// SPDX-License-Identifier: MIT
//
// What the hooking service has done, for tests and for whoever asks why a feature is missing.
#pragma once

#include <string>
#include <vector>

#include "bridge/runtime/objc.h"
#include "desktop/platform.h"

namespace desktop::runtime {

enum class HookOutcome {
  replacedOwn,        // the class had the method itself
  extendedInherited,  // the class got a method of its own over its superclass's
  missingClass,       // nothing was done
  missingMethod,      // neither the class nor its superclasses have it; nothing was done
};

struct MethodHook {
  std::string className;  // empty where the class was missing
  std::string selector;
  HookOutcome outcome;
  bool operator==(const MethodHook&) const = default;
};

// Makes the replacement the class's own implementation of the selector and stores the one in effect
// until then in *saved, as MSHookMessageEx does, without a record: for the platform's own use.
HookOutcome replaceMethod(Class aClass, SEL selector, IMP replacement, IMP* saved);

// Every call of MSHookMessageEx in this process so far, in order. Thread-safe.
std::vector<MethodHook> methodHooks();

}  // namespace desktop::runtime
