// SPDX-License-Identifier: MIT
//
// What the hooking service has done, for tests and for whoever asks why a feature is missing.
#pragma once

#include <string>
#include <vector>

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

// Every call of MSHookMessageEx in this process so far, in order. Thread-safe.
std::vector<MethodHook> methodHooks();

}  // namespace desktop::runtime
