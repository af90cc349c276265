// SPDX-License-Identifier: MIT
//
// The order in which keys are shown: case-insensitive, as the platform's
// localizedCaseInsensitiveCompare: sorts them.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "model/value.h"

namespace model {

// Compares two keys; negative, zero or positive as the first comes before, with or after the
// second. May be called from several threads at once.
using KeyComparison = std::function<int(std::string_view, std::string_view)>;

// The root collation for ASCII: blank _ - , ; : ! ? . ' " ( ) [ ] { } @ * / \ & # % ` ^ + < = > |
// ~ $, digits, letters ignoring case; a prefix comes first. Tab and line breaks stand before the
// blank, and all other control characters are ignored, as the collation does. Other characters
// stand behind ASCII by their code points; a locale's own order for them comes from whoever has
// its data.
int compareKeys(std::string_view left, std::string_view right);

// The keys of a dictionary in the order of the comparison; keys that compare equal stand in
// literal order. The keys are borrowed from the dictionary.
std::vector<std::string_view> sortedKeys(const Dictionary& dictionary,
                                         const KeyComparison& comparison = compareKeys);

}  // namespace model
