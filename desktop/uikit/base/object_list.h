// SPDX-License-Identifier: MIT
//
// Lists of owned objects, to and from the platform's arrays.
#pragma once

#include <vector>

#include "bridge/foundation.h"
#include "desktop/platform.h"

namespace desktop::uikit {

template <Handle T>
using ObjectList = std::vector<Owned<T>>;

// Of the elements that are of the handle's class.
template <Handle T>
ObjectList<T> listOf(NSArray array) {
  ObjectList<T> list;
  const NSUInteger count = array.count();
  for (NSUInteger index = 0; index < count; ++index)
    if (const T object = as<T>(array.at(index))) list.push_back(Owned<T>::retain(object));
  return list;
}

// Autoreleased.
template <Handle T>
NSArray arrayOf(const ObjectList<T>& list) {
  const auto all = makeNew<NSMutableArray>();
  for (const auto& object : list) all->add(object.get());
  return Owned<NSArray>::retain(all.get()).autorelease();
}

template <Handle T>
NSArray arrayOrNil(const ObjectList<T>& list) {
  return list.empty() ? NSArray() : arrayOf(list);
}

}  // namespace desktop::uikit
