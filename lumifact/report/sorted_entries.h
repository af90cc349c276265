// SPDX-License-Identifier: MIT
//
// The entries of a dictionary in the order in which keys are shown.
#pragma once

#include <algorithm>
#include <vector>

#include "model/key_order.h"
#include "model/value.h"

namespace lumifact {

// The entries (pairs of key and value) of a dictionary, constant or not, sorted by the comparison;
// keys that compare equal stand in literal order. Borrowed from the dictionary: values may be
// rewritten while walking, entries neither added nor removed.
template <typename Entries>
auto sortedEntries(Entries& dictionary, const model::KeyComparison& comparison) {
  std::vector<decltype(&*dictionary.begin())> entries;
  entries.reserve(dictionary.size());
  for (auto& entry : dictionary) entries.push_back(&entry);
  std::ranges::stable_sort(entries, [&](const auto* left, const auto* right) {
    return comparison(left->first, right->first) < 0;
  });
  return entries;
}

}  // namespace lumifact
