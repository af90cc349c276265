// SPDX-License-Identifier: MIT
#include "foundation/icu/icu_locale.h"

#include <unicode/ures.h>

namespace foundation {

std::optional<icu::Locale> icuLocaleOf(const Locale& locale) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::LocalUResourceBundlePointer data(ures_open(nullptr, locale.name().c_str(), &status));
  if (U_FAILURE(status) || status == U_USING_DEFAULT_WARNING) return std::nullopt;
  return icu::Locale(locale.name().c_str());
}

}  // namespace foundation
