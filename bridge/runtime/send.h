// SPDX-License-Identifier: MIT
//
// The message: send<R, "selector:">(receiver, arguments...).
//
// The argument types, lowered, must be exactly those of the method: a handle's one-line methods
// see to that. Fixed arguments only, since processors pass variadic ones differently.
#pragma once

#include "bridge/runtime/abi.h"
#include "bridge/runtime/selector.h"

namespace bridge {

// An argument as the method takes it; arrays of characters are passed as pointers.
template <typename T>
auto lowered(const T& argument) {
  return Abi<std::decay_t<const T&>>::lower(argument);
}

// Sends a message and answers what the method does; nil answers the zero of R and nothing is
// looked up. What the method raises passes through.
//
//   NSUInteger count = send<NSUInteger, "count">(array);
template <typename R, FixedString Selector, typename Receiver, typename... Arguments>
R send(const Receiver& receiver, const Arguments&... arguments) {
  static_assert(argumentCount(Selector.view()) == sizeof...(Arguments),
                "A message takes as many arguments as its selector has colons.");
  const id object = rawObject(receiver);
  if (!object) return R();
  if constexpr (std::is_void_v<R>) {
    dispatch<void>(object, selector<Selector>(), lowered(arguments)...);
  } else {
    return Abi<R>::raise(dispatch<Lowered<R>>(object, selector<Selector>(), lowered(arguments)...));
  }
}

// The same with the implementation that `superclass` has or inherits, for methods that extend it.
template <typename R, FixedString Selector, typename Receiver, typename... Arguments>
R superSend(const Receiver& receiver, Class superclass, const Arguments&... arguments) {
  static_assert(argumentCount(Selector.view()) == sizeof...(Arguments),
                "A message takes as many arguments as its selector has colons.");
  const id object = rawObject(receiver);
  if (!object) return R();
  if constexpr (std::is_void_v<R>) {
    dispatchSuper<void>(object, superclass, selector<Selector>(), lowered(arguments)...);
  } else {
    return Abi<R>::raise(
        dispatchSuper<Lowered<R>>(object, superclass, selector<Selector>(), lowered(arguments)...));
  }
}

}  // namespace bridge
