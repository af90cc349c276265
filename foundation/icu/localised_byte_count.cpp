// SPDX-License-Identifier: MIT
#include "foundation/icu/localised_byte_count.h"

#include <unicode/measunit.h>
#include <unicode/numberformatter.h>
#include <unicode/rbnf.h>

#include <algorithm>
#include <array>
#include <map>
#include <string_view>
#include <utility>

#include "foundation/icu/icu_locale.h"

namespace foundation {

namespace {

using icu::MeasureUnit;
using icu::UnicodeString;
using icu::number::FormattedNumber;
using icu::number::LocalizedNumberFormatter;

// The languages in which the platform spells a size of zero.
constexpr std::array<std::string_view, 13> zeroSpellers = {"ar", "da", "el", "en", "fr", "hi", "hr",
                                                           "id", "it", "ms", "pt", "ro", "th"};

MeasureUnit measureUnit(ByteUnit unit) {
  switch (unit) {
    case ByteUnit::byte:
      return MeasureUnit::getByte();
    case ByteUnit::kilobyte:
      return MeasureUnit::getKilobyte();
    case ByteUnit::megabyte:
      return MeasureUnit::getMegabyte();
    case ByteUnit::gigabyte:
      return MeasureUnit::getGigabyte();
    case ByteUnit::terabyte:
      return MeasureUnit::getTerabyte();
    case ByteUnit::petabyte:
      break;
  }
  return MeasureUnit::getPetabyte();
}

// Bytes are named in full, larger units by their symbols.
LocalizedNumberFormatter makeFormatter(ByteUnit unit, const icu::Locale& locale) {
  return icu::number::NumberFormatter::withLocale(locale)
      .unit(measureUnit(unit))
      .unitWidth(unit == ByteUnit::byte ? UNUM_UNIT_WIDTH_FULL_NAME : UNUM_UNIT_WIDTH_SHORT);
}

// A formatter is costly to make, and is used from one thread at a time. Null where ICU has no
// data.
const LocalizedNumberFormatter* formatterOf(ByteUnit unit, const Locale& locale) {
  thread_local std::map<std::pair<std::string, ByteUnit>, std::optional<LocalizedNumberFormatter>>
      formatters;
  const auto [entry, isNew] = formatters.try_emplace({locale.name(), unit});
  if (isNew) {
    const auto icuLocale = icuLocaleOf(locale);
    if (icuLocale) entry->second = makeFormatter(unit, *icuLocale);
  }
  return entry->second ? &*entry->second : nullptr;
}

UnicodeString spelledZero(const icu::Locale& locale) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::RuleBasedNumberFormat speller(icu::URBNF_SPELLOUT, locale, status);
  UnicodeString word;
  if (U_FAILURE(status)) return word;
  speller.format(std::int32_t{0}, word);
  return word.toTitle(nullptr, locale);
}

// Puts a word in the place of the digits.
void replaceDigits(UnicodeString& text, const FormattedNumber& number, const UnicodeString& word) {
  UErrorCode status = U_ZERO_ERROR;
  icu::ConstrainedFieldPosition position;
  position.constrainField(UFIELD_CATEGORY_NUMBER, UNUM_INTEGER_FIELD);
  if (!number.nextPosition(position, status) || U_FAILURE(status)) return;
  text.replaceBetween(position.getStart(), position.getLimit(), word);
}

// Newer data writes kilobytes with a small letter and parts the number from its unit by blanks
// that do not break.
void restorePlatformSpelling(UnicodeString& text) {
  text.findAndReplace(UnicodeString(u'\u00A0'), UnicodeString(u' '));
  text.findAndReplace(UnicodeString(u'\u202F'), UnicodeString(u' '));
  text.findAndReplace(u" kB", u" KB");
  text.findAndReplace(u" ko", u" Ko");
}

}  // namespace

std::optional<std::string> localisedByteCount(const std::string& decimal, ByteUnit unit,
                                              const Locale& locale) {
  const bool isZero = decimal == "0";
  const auto* formatter = formatterOf(isZero ? ByteUnit::kilobyte : unit, locale);
  if (formatter == nullptr) return std::nullopt;
  UErrorCode status = U_ZERO_ERROR;
  const FormattedNumber number = formatter->formatDecimal(decimal, status);
  UnicodeString text = number.toString(status);
  if (U_FAILURE(status)) return std::nullopt;
  const icu::Locale icuLocale(locale.name().c_str());
  const bool spelled = isZero && std::ranges::count(zeroSpellers, icuLocale.getLanguage()) > 0;
  const UnicodeString word = spelled ? spelledZero(icuLocale) : UnicodeString();
  if (!word.isEmpty()) replaceDigits(text, number, word);
  restorePlatformSpelling(text);
  std::string result;
  return text.toUTF8String(result);
}

}  // namespace foundation
