// SPDX-License-Identifier: MIT
//
// The C++ side of a class of our own: its state, which lives inside the runtime object, and what
// its methods reach self and super with. ClassBuilder makes the runtime's side of it.
#pragma once

#include <atomic>
#include <concepts>
#include <cstddef>
#include <new>

#include "bridge/runtime/send.h"

namespace bridge {

// What is known of a bound class once it is registered.
struct BoundClass {
  BoundClass* parent = nullptr;  // of the C++ class below which this one is; null at the top
  Class superclass = nullptr;
  std::ptrdiff_t stateOffset = 0;  // of the C++ object inside the runtime object, in bytes
  std::size_t stateEnd = 0;        // behind the C++ object, likewise
  std::atomic<long> liveObjects = 0;

  std::size_t stateSize() const { return stateEnd - static_cast<std::size_t>(stateOffset); }
};

// How many objects of all bound classes are alive, an object once for each bound class that it is
// of; for tests.
long liveBoundObjects();

// What all states have: the runtime object that they are the state of.
class BoundState {
 public:
  BoundState(const BoundState&) = delete;
  BoundState& operator=(const BoundState&) = delete;

 protected:
  explicit BoundState(id self) : _self(self) {}
  ~BoundState() = default;
  id rawSelf() const { return _self; }

 private:
  id _self;
};

namespace bound_detail {

template <typename Super>
struct Below;  // a handle: the state is a new one, in an object of somebody else's class
template <Handle Super>
struct Below<Super> {
  using State = BoundState;
  using Self = Super;
  static constexpr BoundClass* binding = nullptr;
};
template <std::derived_from<BoundState> Super>
struct Below<Super> {
  using State = Super;
  using Self = typename Super::Self;
  static constexpr BoundClass* binding = &Super::binding;
};

}  // namespace bound_detail

// The base of a class whose objects are the C++ state of a runtime object. Super is what it is
// below: the state of another bound class, which it then inherits, or the handle of a class that
// is not bound here. Self is the handle by which others know its objects, Super's by default. Made
// with the object, destroyed with it, never copied.
//
//   class CounterState : public Bound<CounterState, NSObject, Counter> {
//    public:
//     using Bound::Bound;
//     static Class classObject();
//     Counter initWithStart(int start) { ... return self(); }
//   };
//   class StepCounterState : public Bound<StepCounterState, CounterState, StepCounter> { ... };
template <typename Derived, typename Super,
          Handle SelfHandle = typename bound_detail::Below<Super>::Self>
class Bound : public bound_detail::Below<Super>::State {
 public:
  using Superclass = Super;
  using Self = SelfHandle;

  explicit Bound(id self) : bound_detail::Below<Super>::State(self) {}

  // The runtime object that this is the state of.
  Self self() const { return Self(this->rawSelf()); }

  // The C++ state of an object. REQUIRES: it is of this class or of one below it.
  static Derived& of(id object) {
    return *std::launder(
        reinterpret_cast<Derived*>(reinterpret_cast<char*>(object) + binding.stateOffset));
  }

  static Derived& of(Object object) { return of(object.get()); }

  static long liveObjects() { return binding.liveObjects; }

  static inline constinit BoundClass binding{.parent = bound_detail::Below<Super>::binding};

 protected:
  // The superclass's implementation of a message to self.
  template <typename R, FixedString Selector, typename... Arguments>
  R super(const Arguments&... arguments) const {
    return superSend<R, Selector>(this->rawSelf(), binding.superclass, arguments...);
  }
};

}  // namespace bridge
