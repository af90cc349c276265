// SPDX-License-Identifier: MIT
#pragma once

#include "bridge/geometry.h"
#include "bridge/runtime.h"

namespace bridge {

struct NSString;

// Anything below the root class.
struct NSObject : Object {
  using Object::Object;
  static Class classObject() { return classNamed<"NSObject">(); }

  // What "%@" prints. Borrowed.
  inline NSString description() const;
  bool isEqual(Object other) const { return send<bool, "isEqual:">(*this, other); }
};

// A new object of a class, as a T: alloc and the initialiser with its arguments.
template <Handle T, FixedString Initialiser, typename... Arguments>
Owned<T> makeWith(Class aClass, const Arguments&... arguments) {
  return Owned<T>::adopt(send<T, Initialiser>(send<id, "alloc">(aClass), arguments...));
}

// A new object of a handle's class or of one below it: alloc and init.
template <Handle T>
Owned<T> makeNew(Class aClass = T::classObject()) {
  return makeWith<T, "init">(aClass);
}

}  // namespace bridge
