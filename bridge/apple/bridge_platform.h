// SPDX-License-Identifier: MIT
//
// How the phone's object runtime differs: what a BOOL is, and how a message finds its
// implementation (one entry point, called through a cast pointer; on arm64 it serves every result
// type).
#pragma once

#include "bridge/runtime/types.h"

using BOOL = bool;

// What stands for receiver and class in a message to the superclass.
struct objc_super {
  id receiver;
  Class superclass;
};

extern "C" {
void objc_msgSend();
void objc_msgSendSuper();
Class object_getClass(id object);
}

namespace bridge {

// REQUIRES: receiver is not nil; the types are exactly those of the method.
template <typename Result, typename... Arguments>
Result dispatch(id receiver, SEL selector, Arguments... arguments) {
  using Implementation = Result (*)(id, SEL, Arguments...);
  return reinterpret_cast<Implementation>(&objc_msgSend)(receiver, selector, arguments...);
}

// The same, with the implementation that the superclass has.
template <typename Result, typename... Arguments>
Result dispatchSuper(id receiver, Class superclass, SEL selector, Arguments... arguments) {
  using Implementation = Result (*)(objc_super*, SEL, Arguments...);
  objc_super super{receiver, superclass};
  return reinterpret_cast<Implementation>(&objc_msgSendSuper)(&super, selector, arguments...);
}

}  // namespace bridge
