// SPDX-License-Identifier: MIT
//
// The hooking service. An inherited method is not rewritten, or the class's siblings would change
// too: the class gets a method of its own first, and only where it has one already is that one's
// implementation replaced.
#include "desktop/runtime/method_hooks.h"

#include <mutex>

namespace desktop::runtime {
namespace {

struct Record {
  std::mutex mutex;
  std::vector<MethodHook> hooks;
};

Record& record() {
  static auto& kept = *new Record;
  return kept;
}

}  // namespace

HookOutcome replaceMethod(Class aClass, SEL selector, IMP replacement, IMP* saved) {
  if (!aClass) return HookOutcome::missingClass;
  const Method method = class_getInstanceMethod(aClass, selector);
  if (!method) return HookOutcome::missingMethod;
  if (saved) *saved = method_getImplementation(method);
  if (class_addMethod(aClass, selector, replacement, method_getTypeEncoding(method)))
    return HookOutcome::extendedInherited;
  method_setImplementation(method, replacement);
  return HookOutcome::replacedOwn;
}

std::vector<MethodHook> methodHooks() {
  const std::scoped_lock lock(record().mutex);
  return record().hooks;
}

}  // namespace desktop::runtime

void MSHookMessageEx(Class aClass, SEL selector, IMP replacement, IMP* saved) {
  using namespace desktop::runtime;
  const HookOutcome outcome = replaceMethod(aClass, selector, replacement, saved);
  const std::scoped_lock lock(record().mutex);
  record().hooks.push_back({aClass ? class_getName(aClass) : "", sel_getName(selector), outcome});
}
