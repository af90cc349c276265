// SPDX-License-Identifier: MIT
#include "lumifact/views/sorted_keys.h"

namespace lumifact {

using bridge::NSArray;
using bridge::NSDictionary;
using bridge::Owned;

NSArray SortedKeys::of(NSDictionary dictionary) {
  if (dictionary != _dictionary.get()) {
    _dictionary = Owned<NSDictionary>::retain(dictionary);
    _keys = Owned<NSArray>::retain(
        dictionary.allKeys().sortedUsing(bridge::selector<"localizedCaseInsensitiveCompare:">()));
  }
  return _keys;
}

}  // namespace lumifact
