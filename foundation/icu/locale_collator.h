// SPDX-License-Identifier: MIT
//
// The order of texts by ICU's locale data.
#pragma once

#include <memory>

#include "foundation/locale_data.h"

namespace foundation {

// Primary strength first, then secondary, punctuation not ignored, digits one by one, case never.
// Null where ICU cannot make one. It costs over a millisecond to make.
std::unique_ptr<Collator> makeLocaleCollator(const Locale& locale);

}  // namespace foundation
