// SPDX-License-Identifier: MIT
//
// The keys of a dictionary in the order in which they are shown.
#pragma once

#include "bridge/foundation/ns_collections.h"
#include "lumifact/platform.h"

namespace lumifact {

// Sorts the keys of one dictionary when they are first asked for, and keeps them: a page asks once
// for every row, and its dictionary never changes.
class SortedKeys {
 public:
  // Borrowed until another dictionary's are asked for.
  NSArray of(NSDictionary dictionary);

 private:
  Owned<NSDictionary> _dictionary;
  Owned<NSArray> _keys;
};

}  // namespace lumifact
