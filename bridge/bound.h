// SPDX-License-Identifier: MIT
//
// The C++ side of a class of our own: its state, which lives inside the runtime object, and what
// its methods reach self and super with. ClassBuilder makes the runtime's side of it.
#pragma once

#include <atomic>
#include <cstddef>
#include <new>

#include "bridge/runtime/send.h"

namespace bridge {

// What is known of a bound class once it is registered.
struct BoundClass {
  Class superclass = nullptr;
  std::ptrdiff_t stateOffset = 0;  // of the C++ object inside the runtime object, in bytes
  std::atomic<long> liveObjects = 0;
};

// How many objects of all bound classes are alive; for tests.
long liveBoundObjects();

// The base of a class whose objects are the C++ state of a runtime object below Super's class.
// Made with the object, destroyed with it, never copied.
//
//   class Counter : public Bound<Counter, NSObject> {
//    public:
//     using Bound::Bound;
//     static Class classObject();
//     Counter::Self initWithStart(int start) { ... }
//   };
template <typename Derived, Handle Super>
class Bound {
 public:
  using Superclass = Super;

  explicit Bound(id self) : _self(self) {}
  Bound(const Bound&) = delete;
  Bound& operator=(const Bound&) = delete;

  // The runtime object that this is the state of, as its superclass's handle.
  Super self() const { return Super(_self); }

  // The C++ state of an object. REQUIRES: it is of this class.
  static Derived& of(id object) {
    return *std::launder(
        reinterpret_cast<Derived*>(reinterpret_cast<char*>(object) + binding.stateOffset));
  }

  static Derived& of(Object object) { return of(object.get()); }

  static long liveObjects() { return binding.liveObjects; }

  static inline constinit BoundClass binding{};

 protected:
  // The superclass's implementation of a message to self.
  template <typename R, FixedString Selector, typename... Arguments>
  R super(const Arguments&... arguments) const {
    return superSend<R, Selector>(_self, binding.superclass, arguments...);
  }

 private:
  id _self;
};

}  // namespace bridge
