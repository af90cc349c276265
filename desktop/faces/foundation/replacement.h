// SPDX-License-Identifier: MIT
//
// How a correction puts itself in a method's place.
#pragma once

#include "bridge/hook.h"
#include "desktop/platform.h"
#include "desktop/runtime/method_hooks.h"

namespace desktop::faces {

// Replaces an instance method of the named class. A class or method that this Foundation does not
// have is left out.
//
//   bridge::Stock<id(id, SEL)> stockDescription;
//   id NSDate_description(id self, SEL command) { ... }
//   replaceMethod("NSDate", "description", &NSDate_description, stockDescription);
template <typename R, typename... Arguments>
void replaceMethod(const char* className, const char* selector,
                   R (*replacement)(id, SEL, Arguments...),
                   Stock<R(id, SEL, Arguments...)>& stock) {
  runtime::replaceMethod(objc_getClass(className), sel_registerName(selector),
                         reinterpret_cast<IMP>(replacement), stock.slot());
}

// The same where the stock implementation is never called.
template <typename R, typename... Arguments>
void replaceMethod(const char* className, const char* selector,
                   R (*replacement)(id, SEL, Arguments...)) {
  Stock<R(id, SEL, Arguments...)> dropped;
  replaceMethod(className, selector, replacement, dropped);
}

// Replaces a method of the class itself.
template <typename R, typename... Arguments>
void replaceClassMethod(const char* className, const char* selector,
                        R (*replacement)(id, SEL, Arguments...),
                        Stock<R(id, SEL, Arguments...)>& stock) {
  runtime::replaceMethod(object_getClass(rawObject(objc_getClass(className))),
                         sel_registerName(selector), reinterpret_cast<IMP>(replacement),
                         stock.slot());
}

}  // namespace desktop::faces
