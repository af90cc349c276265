// SPDX-License-Identifier: MIT
//
// The module's one function. A program may have a C++ library of its own, so what is thrown here
// stays here.
#include <exception>

#include "foundation/icu/icu_locale.h"
#include "foundation/icu/locale_collator.h"
#include "foundation/icu/localised_byte_count.h"
#include "foundation/icu/localised_date_text.h"
#include "foundation/locale_data.h"

namespace foundation {

namespace {

// What the work answers, or none where it throws.
template <typename Work>
auto guarded(const Work& work) noexcept -> decltype(work()) {
  try {
    return work();
  } catch (const std::exception&) {
    return {};
  }
}

class IcuLocaleData : public LocaleData {
 public:
  std::optional<std::string> byteCountText(const std::string& decimal, ByteUnit unit,
                                           const Locale& locale) const override {
    return guarded([&] { return localisedByteCount(decimal, unit, locale); });
  }
  bool knows(const Locale& locale) const override {
    return guarded([&] { return icuLocaleOf(locale).has_value(); });
  }
  std::optional<std::string> dateText(const model::CivilTime& time, DateStyle style,
                                      const Locale& locale) const override {
    return guarded([&] { return localisedDateText(time, style, locale); });
  }
  std::optional<std::string> calendarText(const model::CivilTime& time, CalendarUnit unit,
                                          const Locale& locale) const override {
    return guarded([&] { return localisedCalendarText(time, unit, locale); });
  }
  std::unique_ptr<Collator> makeCollator(const Locale& locale) const override {
    return guarded([&] { return makeLocaleCollator(locale); });
  }
};

}  // namespace

}  // namespace foundation

extern "C" __attribute__((visibility("default"))) const foundation::LocaleData*
desktopLocaleData() {
  static const foundation::IcuLocaleData data;
  return &data;
}
