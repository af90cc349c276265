// SPDX-License-Identifier: MIT
#include "lumifact/views/sorted_keys.h"

namespace lumifact {

NSArray SortedKeys::of(NSDictionary dictionary) {
  if (dictionary != _dictionary.get()) {
    _dictionary = Owned<NSDictionary>::retain(dictionary);
    _keys = Owned<NSArray>::retain(dictionary.allKeys().sortedCaseInsensitively());
  }
  return _keys;
}

}  // namespace lumifact
