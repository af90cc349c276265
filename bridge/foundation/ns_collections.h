// SPDX-License-Identifier: MIT
//
// Arrays, dictionaries, sets and the cache. Elements are borrowed from their collection.
#pragma once

#include "bridge/foundation/ns_string.h"

namespace bridge {

struct NSArray : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"NSArray">(); }

  // Of objects none of which is nil. Autoreleased.
  template <Handle... T>
  static NSArray of(T... objects) {
    const id elements[] = {objects.get()..., nullptr};
    return send<NSArray, "arrayWithObjects:count:">(classObject(), static_cast<const id*>(elements),
                                                    NSUInteger{sizeof...(T)});
  }

  NSUInteger count() const { return send<NSUInteger, "count">(*this); }
  // REQUIRES: index < count().
  Object at(NSUInteger index) const { return send<Object, "objectAtIndex:">(*this, index); }
  // Whether this very object is in it.
  bool containsIdentical(Object object) const {
    return *this && send<NSUInteger, "indexOfObjectIdenticalTo:">(*this, object) !=
                        static_cast<NSUInteger>(NSNotFound);
  }
  NSArray sortedUsing(SEL comparison) const {
    return send<NSArray, "sortedArrayUsingSelector:">(*this, comparison);
  }
  // Texts in the order in which the platform shows them.
  NSArray sortedCaseInsensitively() const {
    return sortedUsing(selector<"localizedCaseInsensitiveCompare:">());
  }
  // Whether an equal object is in it.
  bool contains(Object object) const { return send<bool, "containsObject:">(*this, object); }
};

struct NSMutableArray : NSArray {
  using NSArray::NSArray;
  static Class classObject() { return classNamed<"NSMutableArray">(); }

  void add(Object object) const { send<void, "addObject:">(*this, object); }
  // REQUIRES: index < count().
  void removeAt(NSUInteger index) const { send<void, "removeObjectAtIndex:">(*this, index); }
};

struct NSDictionary : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"NSDictionary">(); }

  NSUInteger count() const { return send<NSUInteger, "count">(*this); }
  NSArray allKeys() const { return send<NSArray, "allKeys">(*this); }
  // Nil where there is no such key.
  Object at(Object key) const { return send<Object, "objectForKey:">(*this, key); }
};

struct NSMutableDictionary : NSDictionary {
  using NSDictionary::NSDictionary;
  static Class classObject() { return classNamed<"NSMutableDictionary">(); }

  // The property list in a file; nil where there is none that can be read.
  static Owned<NSMutableDictionary> withContentsOfFile(NSString path) {
    return makeWith<NSMutableDictionary, "initWithContentsOfFile:">(classObject(), path);
  }

  // REQUIRES: neither is nil.
  void set(Object value, Object key) const { send<void, "setObject:forKey:">(*this, value, key); }
  void remove(Object key) const { send<void, "removeObjectForKey:">(*this, key); }
};

// A copy that can be changed; +1. Its elements are shared.
inline Owned<NSMutableArray> mutableCopy(NSArray array) {
  return Owned<NSMutableArray>::adopt(send<NSMutableArray, "mutableCopy">(array));
}
inline Owned<NSMutableDictionary> mutableCopy(NSDictionary dictionary) {
  return Owned<NSMutableDictionary>::adopt(send<NSMutableDictionary, "mutableCopy">(dictionary));
}

// A copy that never changes; +1.
inline Owned<NSArray> copy(NSArray array) {
  return Owned<NSArray>::adopt(send<NSArray, "copy">(array));
}
inline Owned<NSDictionary> copy(NSDictionary dictionary) {
  return Owned<NSDictionary>::adopt(send<NSDictionary, "copy">(dictionary));
}

struct NSSet : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"NSSet">(); }

  // Autoreleased, both.
  static NSSet none() { return send<NSSet, "set">(classObject()); }
  static NSSet of(Object object) { return send<NSSet, "setWithObject:">(classObject(), object); }

  Object anyObject() const { return send<Object, "anyObject">(*this); }
};

struct NSMutableSet : NSSet {
  using NSSet::NSSet;
  static Class classObject() { return classNamed<"NSMutableSet">(); }

  void add(Object object) const { send<void, "addObject:">(*this, object); }
};

// Thread-safe; may drop entries under memory pressure at any time.
struct NSCache : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"NSCache">(); }

  Object at(Object key) const { return send<Object, "objectForKey:">(*this, key); }
  // REQUIRES: neither is nil.
  void set(Object value, Object key) const { send<void, "setObject:forKey:">(*this, value, key); }
};

}  // namespace bridge
