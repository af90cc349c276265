// SPDX-License-Identifier: MIT
#include "foundation/icu/localised_date_text.h"

#include <unicode/dtfmtsym.h>
#include <unicode/smpdtfmt.h>

#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "foundation/icu/icu_locale.h"

namespace foundation {

namespace {

using icu::DateFormat;
using icu::SimpleDateFormat;
using icu::UnicodeString;
using Format = std::unique_ptr<SimpleDateFormat>;

// The locale's own format; null where there is none. kNone leaves a part out.
Format stockFormat(DateFormat::EStyle date, DateFormat::EStyle time, const icu::Locale& locale) {
  Format format(dynamic_cast<SimpleDateFormat*>(
      time == DateFormat::kNone   ? DateFormat::createDateInstance(date, locale)
      : date == DateFormat::kNone ? DateFormat::createTimeInstance(time, locale)
                                  : DateFormat::createDateTimeInstance(date, time, locale)));
  return format;
}

UnicodeString pattern(DateFormat::EStyle date, DateFormat::EStyle time, const icu::Locale& locale) {
  UnicodeString text;
  if (const Format format = stockFormat(date, time, locale)) format->toPattern(text);
  return text;
}

// The platform joins a medium date and its time by the word of long dates in these languages
// ("at"), while the locale data has a comma.
bool joinsMediumDatesByAWord(const icu::Locale& locale) {
  const std::string_view language = locale.getLanguage();
  return language == "en" || language == "fr";
}

// The pattern of long dates with their parts replaced by the medium ones; empty where the long
// pattern does not hold its parts.
UnicodeString patternJoinedByAWord(const icu::Locale& locale) {
  UnicodeString joined = pattern(DateFormat::kLong, DateFormat::kLong, locale);
  const UnicodeString longDate = pattern(DateFormat::kLong, DateFormat::kNone, locale);
  const UnicodeString longTime = pattern(DateFormat::kNone, DateFormat::kLong, locale);
  if (joined.indexOf(longDate) < 0 || joined.indexOf(longTime) < 0) return {};
  joined.findAndReplace(longDate, pattern(DateFormat::kMedium, DateFormat::kNone, locale));
  joined.findAndReplace(longTime, pattern(DateFormat::kNone, DateFormat::kMedium, locale));
  return joined;
}

// English data outside the United States has since come to say "Sept".
void restoreSeptember(SimpleDateFormat& format) {
  icu::DateFormatSymbols symbols(*format.getDateFormatSymbols());
  int32_t count = 0;
  const UnicodeString* stock =
      symbols.getMonths(count, icu::DateFormatSymbols::FORMAT, icu::DateFormatSymbols::ABBREVIATED);
  std::vector<UnicodeString> months(stock, stock + count);
  for (UnicodeString& month : months) {
    if (month == u"Sept") month = u"Sep";
  }
  symbols.setMonths(months.data(), count, icu::DateFormatSymbols::FORMAT,
                    icu::DateFormatSymbols::ABBREVIATED);
  format.setDateFormatSymbols(symbols);
}

// Every form of a date that is written here.
enum class Form { mediumDateTime, shortDateTime, day, month, year };

Format dateTimeFormat(Form form, const icu::Locale& locale) {
  const bool isMedium = form == Form::mediumDateTime;
  Format format =
      stockFormat(isMedium ? DateFormat::kMedium : DateFormat::kShort, DateFormat::kMedium, locale);
  if (format == nullptr || !isMedium || !joinsMediumDatesByAWord(locale)) return format;
  const UnicodeString joined = patternJoinedByAWord(locale);
  if (!joined.isEmpty()) format->applyPattern(joined);
  return format;
}

// The locale's own order and words for the fields of a skeleton.
Format skeletonFormat(const UnicodeString& skeleton, const icu::Locale& locale) {
  UErrorCode status = U_ZERO_ERROR;
  return Format(dynamic_cast<SimpleDateFormat*>(
      DateFormat::createInstanceForSkeleton(skeleton, locale, status)));
}

Format formatOfForm(Form form, const icu::Locale& locale) {
  if (form == Form::day) return stockFormat(DateFormat::kMedium, DateFormat::kNone, locale);
  if (form == Form::month) return skeletonFormat(u"yMMMM", locale);
  if (form == Form::year) return skeletonFormat(u"y", locale);
  return dateTimeFormat(form, locale);
}

Format makeFormat(Form form, const icu::Locale& locale) {
  Format format = formatOfForm(form, locale);
  if (format == nullptr) return nullptr;
  if (std::string_view(locale.getLanguage()) == "en") restoreSeptember(*format);
  format->setTimeZone(*icu::TimeZone::getGMT());
  return format;
}

// A format takes a millisecond to make, and is used from one thread at a time. Null where ICU has
// no data.
const SimpleDateFormat* formatOf(Form form, const Locale& locale) {
  thread_local std::map<std::pair<std::string, Form>, Format> formats;
  const auto [entry, isNew] = formats.try_emplace({locale.name(), form});
  if (isNew) {
    const auto icuLocale = icuLocaleOf(locale);
    if (icuLocale) entry->second = makeFormat(form, *icuLocale);
  }
  return entry->second.get();
}

// The clocks' time is given to ICU as if it were UTC, so that the C library alone decides on the
// time zone.
std::optional<std::string> textOf(const model::CivilTime& time, Form form, const Locale& locale) {
  const SimpleDateFormat* format = formatOf(form, locale);
  if (format == nullptr) return std::nullopt;
  UnicodeString text;
  format->format(model::dateFromUtc(time).secondsSince1970 * 1000, text);
  text.findAndReplace(UnicodeString(u'\u202F'), UnicodeString(u' '));
  std::string result;
  return text.toUTF8String(result);
}

Form formOf(CalendarUnit unit) {
  if (unit == CalendarUnit::day) return Form::day;
  return unit == CalendarUnit::month ? Form::month : Form::year;
}

}  // namespace

std::optional<std::string> localisedDateText(const model::CivilTime& time, DateStyle style,
                                             const Locale& locale) {
  const bool isMedium = style == DateStyle::mediumDate;
  return textOf(time, isMedium ? Form::mediumDateTime : Form::shortDateTime, locale);
}

std::optional<std::string> localisedCalendarText(const model::CivilTime& time, CalendarUnit unit,
                                                 const Locale& locale) {
  return textOf(time, formOf(unit), locale);
}

}  // namespace foundation
