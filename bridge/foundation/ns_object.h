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

// What an initialiser makes of an object: itself, or another in its place, or nil.
template <FixedString Initialiser, Handle T, typename... Arguments>
T initWith(T object, const Arguments&... arguments) {
  return send<T, Initialiser>(object, arguments...);
}

// A new object of a class, as a T: alloc and the initialiser with its arguments.
template <Handle T, FixedString Initialiser, typename... Arguments>
Owned<T> makeWith(Class aClass, const Arguments&... arguments) {
  return Owned<T>::adopt(send<T, Initialiser>(send<id, "alloc">(aClass), arguments...));
}

// A copy; +1.
inline Owned<NSObject> copy(NSObject object) {
  return Owned<NSObject>::adopt(send<NSObject, "copy">(object));
}

// A new object of a handle's class or of one below it: alloc and init.
template <Handle T>
Owned<T> makeNew(Class aClass = T::classObject()) {
  return makeWith<T, "init">(aClass);
}

// A pool as an object, where the runtime's own functions for pools are made of it.
struct NSAutoreleasePool : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"NSAutoreleasePool">(); }

  // Releases what is in it, and itself.
  void drain() const { send<void, "drain">(*this); }
};

}  // namespace bridge
