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

// A new object of a handle's class: alloc and init.
template <Handle T>
Owned<T> makeNew() {
  return Owned<T>::adopt(send<T, "init">(send<id, "alloc">(T::classObject())));
}

}  // namespace bridge
