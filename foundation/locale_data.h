// SPDX-License-Identifier: MIT
//
// The customs of locales by ICU's data. ICU is mapped when it is first asked, by locales other than
// en_US and keys beyond ASCII: it costs a program more time at its start than most files take.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "foundation/date_style.h"
#include "foundation/locale.h"
#include "model/civil_time.h"

namespace foundation {

// In the order of their sizes; decimal: a kilobyte is 1,000 bytes.
enum class ByteUnit { byte, kilobyte, megabyte, gigabyte, terabyte, petabyte };

// The order of texts in a locale.
class Collator {
 public:
  virtual ~Collator() = default;

  // Negative, zero or positive as the left text comes before, with or after the right one.
  // Thread-safe.
  virtual int compare(std::string_view left, std::string_view right) const = 0;
};

// Everything answers none (or null) where ICU has no data. Thread-safe. Nothing is thrown.
class LocaleData {
 public:
  virtual ~LocaleData() = default;

  // A plain decimal ("-1.29") of the unit in the digits, separators and unit names of the locale;
  // "0" is kilobytes, spelled out where the platform does so.
  virtual std::optional<std::string> byteCountText(const std::string& decimal, ByteUnit unit,
                                                   const Locale& locale) const = 0;

  // Whether there is data for its language.
  virtual bool knows(const Locale& locale) const = 0;

  // What clocks show, in the style and the customs of the locale. Blanks are plain where newer data
  // has narrow ones.
  virtual std::optional<std::string> dateText(const model::CivilTime& time, DateStyle style,
                                              const Locale& locale) const = 0;

  // The day, the month with its year or the year, likewise.
  virtual std::optional<std::string> calendarText(const model::CivilTime& time, CalendarUnit unit,
                                                  const Locale& locale) const = 0;

  // Ignores case, and nothing else.
  virtual std::unique_ptr<Collator> makeCollator(const Locale& locale) const = 0;
};

// Maps ICU when it is first called. Null where it is not installed: then texts are en_US's.
const LocaleData* localeData();

// Whether a name is that of a locale whose customs are known. Where ICU is not installed, whether
// it is made like one.
bool localeExists(std::string_view name);

// The module and its one function, under its C name. What it answers lives as long as the process.
inline constexpr char localeDataModule[] = "foundation_locale_data.so";
inline constexpr char localeDataFunction[] = "desktopLocaleData";
extern "C" {
using GetLocaleData = const LocaleData* (*)();
}

}  // namespace foundation
