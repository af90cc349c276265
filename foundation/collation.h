// SPDX-License-Identifier: MIT
//
// The order of keys in a user's locale.
#pragma once

#include "foundation/locale.h"
#include "model/key_order.h"

namespace foundation {

// Compares as localizedCaseInsensitiveCompare: does in the locale: primary strength first, then
// secondary, punctuation not ignored, digits one by one, case never. Keys of ASCII are compared
// without locale data; a collator is made when the first other key is met. Thread-safe.
model::KeyComparison keyComparison(const Locale& locale);

}  // namespace foundation
