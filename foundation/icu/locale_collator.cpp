// SPDX-License-Identifier: MIT
#include "foundation/icu/locale_collator.h"

#include <unicode/coll.h>

#include <utility>

namespace foundation {

namespace {

class LocaleCollator : public Collator {
 public:
  explicit LocaleCollator(std::unique_ptr<icu::Collator> collator)
      : _collator(std::move(collator)) {}

  int compare(std::string_view left, std::string_view right) const override {
    UErrorCode status = U_ZERO_ERROR;
    return _collator->compareUTF8({left.data(), static_cast<int32_t>(left.size())},
                                  {right.data(), static_cast<int32_t>(right.size())}, status);
  }

 private:
  std::unique_ptr<icu::Collator> _collator;
};

}  // namespace

// Secondary strength compares all letters first, then all accents, and never case.
std::unique_ptr<Collator> makeLocaleCollator(const Locale& locale) {
  UErrorCode status = U_ZERO_ERROR;
  std::unique_ptr<icu::Collator> collator(
      icu::Collator::createInstance(icu::Locale(locale.name().c_str()), status));
  if (collator == nullptr) return nullptr;
  collator->setAttribute(UCOL_STRENGTH, UCOL_SECONDARY, status);
  collator->setAttribute(UCOL_ALTERNATE_HANDLING, UCOL_NON_IGNORABLE, status);
  collator->setAttribute(UCOL_NUMERIC_COLLATION, UCOL_OFF, status);
  collator->setAttribute(UCOL_CASE_LEVEL, UCOL_OFF, status);
  collator->setAttribute(UCOL_NORMALIZATION_MODE, UCOL_ON, status);
  if (U_FAILURE(status)) return nullptr;
  return std::make_unique<LocaleCollator>(std::move(collator));
}

}  // namespace foundation
