// SPDX-License-Identifier: MIT
//
// Classes by name, looked up once and kept; kind tests and casts.
#pragma once

#include <atomic>

#include "bridge/runtime/send.h"

namespace bridge {

// The class of this name, or nil where nobody has registered one. A class that was found is kept
// for the life of the process; one that was not is looked for again.
template <FixedString Name>
Class classNamed() {
  static constinit std::atomic<Class> kept{nullptr};
  Class found = kept.load(std::memory_order_relaxed);
  if (!found) {
    found = objc_getClass(Name.text);
    kept.store(found, std::memory_order_relaxed);
  }
  return found;
}

// Whether the object is of the class or of one below it. Nil is of no class, and no object is of
// a class that does not exist.
inline bool isKindOf(Object object, Class aClass) {
  return aClass && send<bool, "isKindOfClass:">(object, aClass);
}

// The object as a T, or nil where it is none. T names its class by classObject().
template <Handle T>
T as(Object object) {
  return isKindOf(object, T::classObject()) ? T(object.get()) : T();
}

// Whether the object answers a message; nil answers none.
inline bool respondsTo(Object object, SEL selector) {
  return send<bool, "respondsToSelector:">(object, selector);
}

// Whether the object answers a message of this name.
template <FixedString Selector>
bool respondsTo(Object object) {
  return respondsTo(object, selector<Selector>());
}

}  // namespace bridge
