// SPDX-License-Identifier: MIT
//
// Lists of owned objects, to and from the platform's arrays.
#pragma once

#include <vector>

#include "bridge/foundation.h"

namespace desktop::uikit {

template <bridge::Handle T>
using ObjectList = std::vector<bridge::Owned<T>>;

// Of the elements that are of the handle's class.
template <bridge::Handle T>
ObjectList<T> listOf(bridge::NSArray array) {
  ObjectList<T> list;
  const NSUInteger count = array.count();
  for (NSUInteger index = 0; index < count; ++index)
    if (const T object = bridge::as<T>(array.at(index)))
      list.push_back(bridge::Owned<T>::retain(object));
  return list;
}

// Autoreleased.
template <bridge::Handle T>
bridge::NSArray arrayOf(const ObjectList<T>& list) {
  const auto all = bridge::makeNew<bridge::NSMutableArray>();
  for (const auto& object : list) all->add(object.get());
  return bridge::Owned<bridge::NSArray>::retain(all.get()).autorelease();
}

template <bridge::Handle T>
bridge::NSArray arrayOrNil(const ObjectList<T>& list) {
  return list.empty() ? bridge::NSArray() : arrayOf(list);
}

}  // namespace desktop::uikit
