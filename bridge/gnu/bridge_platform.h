// SPDX-License-Identifier: MIT
//
// How GCC's object runtime differs: what a BOOL is, and how a message finds its
// implementation (a look-up, then a call through the cast pointer).
#pragma once

#include <type_traits>

#include "bridge/runtime/types.h"

using BOOL = unsigned char;

// What stands for receiver and class in a message to the superclass.
struct objc_super {
  id receiver;
  Class superclass;
};

extern "C" {
IMP objc_msg_lookup(id receiver, SEL selector);
IMP objc_msg_lookup_super(objc_super* super, SEL selector);
BOOL class_respondsToSelector(Class aClass, SEL selector);

// The runtime has this as an inline function only: the first word of an object is its class.
inline Class object_getClass(id object) {
  return object ? *reinterpret_cast<Class*>(object) : nullptr;
}
}

namespace bridge {

// REQUIRES: receiver is not nil; the types are exactly those of the method. A message that is not
// answered goes to whatever the runtime has for those, which knows nothing of structures.
template <typename Result, typename... Arguments>
Result dispatch(id receiver, SEL selector, Arguments... arguments) {
  using Implementation = Result (*)(id, SEL, Arguments...);
  if constexpr (std::is_class_v<Result>) {
    if (!class_respondsToSelector(object_getClass(receiver), selector)) {
      dispatch<void>(receiver, selector);
      return Result();
    }
  }
  const auto implementation = reinterpret_cast<Implementation>(objc_msg_lookup(receiver, selector));
  return implementation(receiver, selector, arguments...);
}

// The same, with the implementation that the superclass has.
template <typename Result, typename... Arguments>
Result dispatchSuper(id receiver, Class superclass, SEL selector, Arguments... arguments) {
  using Implementation = Result (*)(id, SEL, Arguments...);
  objc_super super{receiver, superclass};
  const auto implementation =
      reinterpret_cast<Implementation>(objc_msg_lookup_super(&super, selector));
  return implementation(receiver, selector, arguments...);
}

}  // namespace bridge
