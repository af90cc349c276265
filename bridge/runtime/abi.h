// SPDX-License-Identifier: MIT
//
// What a C++ type of ours is in a method's C signature: a handle is an id, a bool is a BOOL, all
// else is itself.
#pragma once

#include "bridge/runtime/object.h"
#include "bridge_platform.h"

namespace bridge {

template <typename T>
struct Abi {
  using Type = T;
  static constexpr Type lower(T value) { return value; }
  static constexpr T raise(Type value) { return value; }
};

template <>
struct Abi<void> {
  using Type = void;
};

template <Handle T>
struct Abi<T> {
  using Type = id;
  static constexpr id lower(T handle) { return handle.get(); }
  static constexpr T raise(id object) { return T(object); }
};

template <>
struct Abi<bool> {
  using Type = BOOL;
  static constexpr BOOL lower(bool value) { return value ? 1 : 0; }
  static constexpr bool raise(BOOL value) { return value != 0; }
};

template <typename T>
using Lowered = typename Abi<T>::Type;

}  // namespace bridge
