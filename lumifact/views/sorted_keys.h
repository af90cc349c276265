// SPDX-License-Identifier: MIT
//
// The keys of a dictionary in the order in which they are shown.
#pragma once

#include "bridge/foundation/ns_collections.h"

namespace lumifact {

// Sorts the keys of one dictionary when they are first asked for, and keeps them: a page asks once
// for every row, and its dictionary never changes.
class SortedKeys {
 public:
  // Borrowed until another dictionary's are asked for.
  bridge::NSArray of(bridge::NSDictionary dictionary);

 private:
  bridge::Owned<bridge::NSDictionary> _dictionary;
  bridge::Owned<bridge::NSArray> _keys;
};

}  // namespace lumifact
