// SPDX-License-Identifier: MIT
//
// The borrowed handle: an object pointer with a type. Every class of the platform that the
// extension talks to is a handle below this one, with one line for each method that it uses.
#pragma once

#include <concepts>

#include "bridge/runtime/types.h"

namespace bridge {

// Any object, or nil. Copied freely; owns nothing: who keeps an object beyond the current
// autorelease pool holds an Owned.
class Object {
 public:
  constexpr Object() = default;
  constexpr explicit Object(id object) : _object(object) {}

  constexpr explicit operator bool() const { return _object != nullptr; }
  constexpr id get() const { return _object; }

  // The same object; what two objects think of each other is isEqual:'s business.
  friend constexpr bool operator==(Object left, Object right) = default;

 private:
  id _object = nullptr;
};

// A type that is nothing but a borrowed object pointer.
template <typename T>
concept Handle = std::derived_from<T, Object> && sizeof(T) == sizeof(void*);

// What a message may be sent to, as the runtime sees it.
inline id rawObject(id object) {
  return object;
}
inline id rawObject(Class aClass) {
  return reinterpret_cast<id>(aClass);
}
inline id rawObject(Object object) {
  return object.get();
}

}  // namespace bridge
