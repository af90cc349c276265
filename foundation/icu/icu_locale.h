// SPDX-License-Identifier: MIT
//
// Locales as ICU knows them.
#pragma once

#include <unicode/locid.h>

#include <optional>

#include "foundation/locale.h"

namespace foundation {

// The locale, or none where ICU has no data for its language: ICU itself would take the
// environment's instead.
std::optional<icu::Locale> icuLocaleOf(const Locale& locale);

}  // namespace foundation
