// SPDX-License-Identifier: MIT
//
// The owning handle: keeps its object alive. Two named ways in, none by accident.
#pragma once

#include <utility>

#include "bridge/runtime/send.h"

namespace bridge {

// Holds one reference to an object, or none to nil. T is a handle; inside T's own definition too.
//
//   auto cache = Owned<NSCache>::adopt(NSCache::make());   // takes over the +1 of new, alloc, copy
//   auto title = Owned<NSString>::retain(label.text());    // shares what somebody else owns
template <typename T>
class Owned {
 public:
  constexpr Owned() = default;

  static Owned retain(T object) {
    send<id, "retain">(object);
    return Owned(object);
  }
  static Owned adopt(T object) { return Owned(object); }

  Owned(const Owned& other) : Owned(retain(other._object)) {}
  Owned(Owned&& other) noexcept : _object(other.detach()) {}
  // The new object is retained before the old one is released: they may hang together.
  Owned& operator=(const Owned& other) {
    Owned(other).swap(*this);
    return *this;
  }
  Owned& operator=(Owned&& other) noexcept {
    Owned(std::move(other)).swap(*this);
    return *this;
  }
  ~Owned() { send<void, "release">(_object); }

  // Borrowed: valid while somebody owns the object.
  T get() const { return _object; }
  operator T() const { return _object; }
  const T* operator->() const { return &_object; }
  explicit operator bool() const { return static_cast<bool>(_object); }

  void reset() { Owned().swap(*this); }
  void swap(Owned& other) noexcept { std::swap(_object, other._object); }

  // Hands the reference to the caller, who releases it.
  [[nodiscard]] T detach() { return std::exchange(_object, T()); }
  // Hands the reference to the current autorelease pool: what a method returns.
  T autorelease() {
    const T object = detach();
    send<id, "autorelease">(object);
    return object;
  }

 private:
  explicit Owned(T object) : _object(object) { static_assert(Handle<T>); }

  T _object;
};

template <typename T>
struct Abi<Owned<T>> {
  using Type = id;
  static id lower(const Owned<T>& object) { return object.get().get(); }
};

}  // namespace bridge
