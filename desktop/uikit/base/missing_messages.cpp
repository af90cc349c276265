// SPDX-License-Identifier: MIT
//
// The runtime asks a hook for an implementation where it finds none. What it is handed here answers
// zero in the registers of integers and of doubles alike; whoever sends a message for a structure
// asks whether it is answered before taking the result.
#include "desktop/uikit/base/missing_messages.h"

#include <algorithm>
#include <string>

#include "bridge/bound.h"
#include "bridge/runtime/objc.h"
#include "bridge/runtime/selector.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/platform_log.h"

extern "C" {
// NOLINTNEXTLINE(bugprone-reserved-identifier): the runtime's own name.
extern IMP (*__objc_msg_forward2)(id receiver, SEL selector);
BOOL class_isMetaClass(Class aClass);
}

namespace desktop::uikit {
namespace {

using Forward = IMP (*)(id, SEL);
constinit Forward forwardBefore = nullptr;

struct Zeros {
  long integer;
  double real;
};

Zeros answerZero(id, SEL) {
  return {};
}

// Bound classes hold their state in a field that is named after them.
bool isBound(Class aClass) {
  const std::string field = std::string("_stateOf") + class_getName(aClass);
  return class_getInstanceVariable(aClass, field.c_str()) != nullptr;
}

// The class that a message was meant for: of the object, or the object itself where it is one.
Class ownClass(id receiver) {
  const Class aClass = object_getClass(receiver);
  return class_isMetaClass(aClass) ? reinterpret_cast<Class>(receiver) : aClass;
}

bool isOurs(Class aClass) {
  for (; aClass; aClass = class_getSuperclass(aClass))
    if (isBound(aClass)) return true;
  return false;
}

void logOnce(const std::string& message) {
  const std::string line = "Missing: " + message;
  if (std::ranges::find(platformLog(), line) == platformLog().end()) logLine(line);
}

std::string described(id receiver, SEL selector) {
  const bool isClass = class_isMetaClass(object_getClass(receiver));
  return std::string(isClass ? "+[" : "-[") + class_getName(ownClass(receiver)) + " " +
         sel_getName(selector) + "]";
}

// A message to the superclass comes without its receiver.
IMP forward(id receiver, SEL selector) {
  if (!receiver) {
    logOnce(std::string("to super: ") + sel_getName(selector));
    return reinterpret_cast<IMP>(&answerZero);
  }
  if (!isOurs(ownClass(receiver)))
    return forwardBefore ? forwardBefore(receiver, selector) : nullptr;
  logOnce(described(receiver, selector));
  return reinterpret_cast<IMP>(&answerZero);
}

}  // namespace

void answerMissingMessages() {
  if (__objc_msg_forward2 == &forward) return;
  forwardBefore = __objc_msg_forward2;
  __objc_msg_forward2 = &forward;
}

}  // namespace desktop::uikit
