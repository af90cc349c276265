// SPDX-License-Identifier: MIT
//
// A property that is added to objects of a class we do not own.
#pragma once

#include "bridge/runtime/objc.h"
#include "bridge/runtime/object.h"

namespace bridge {

// A strong, non-atomic property, kept beside the object and released with it. The property itself
// is the key, so each one is a constant of its own:
//
//   constinit AssociatedProperty<UIView> sizeLabelView;
//   sizeLabelView.set(cell, bar);
template <Handle T>
class AssociatedProperty {
 public:
  constexpr AssociatedProperty() = default;
  AssociatedProperty(const AssociatedProperty&) = delete;
  AssociatedProperty& operator=(const AssociatedProperty&) = delete;

  // Nil where nothing was set, and of nil. Borrowed from the owner.
  T get(Object owner) const { return owner ? T(objc_getAssociatedObject(owner.get(), this)) : T(); }

  // Setting nil takes the property away; nil as the owner is ignored.
  void set(Object owner, T value) const {
    if (owner) objc_setAssociatedObject(owner.get(), this, value.get(), retainNonatomic);
  }

 private:
  static constexpr std::uintptr_t retainNonatomic = 1;

  char _distinct = 0;  // so that no two properties can share an address
};

}  // namespace bridge
