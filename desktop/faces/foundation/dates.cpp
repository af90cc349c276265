// SPDX-License-Identifier: MIT
//
// Foundation's formatter here joins medium dates and times with a comma, puts a narrow blank before
// AM and PM, reads no TZ, and words a missing date as 1970; a date describes itself in local time.
#include "bridge/foundation.h"
#include "desktop/faces/foundation/corrections.h"
#include "desktop/faces/foundation/replacement.h"
#include "desktop/platform.h"
#include "foundation/date_text.h"
#include "model/description.h"

namespace desktop::faces {
namespace {

// The pairs of styles that are worded here: a short or medium date with a medium time.
bool isWordedHere(NSUInteger dateStyle, NSUInteger timeStyle) {
  return timeStyle == NSDateFormatter::mediumStyle &&
         (dateStyle == NSDateFormatter::shortStyle || dateStyle == NSDateFormatter::mediumStyle);
}

id worded(id date, NSUInteger dateStyle) {
  static const foundation::Locale& locale =
      *new foundation::Locale(foundation::Locale::ofUser("LC_TIME"));
  const model::Date moment = {NSDate(date).timeIntervalSince1970()};
  const foundation::DateStyle style = dateStyle == NSDateFormatter::shortStyle
                                          ? foundation::DateStyle::shortDate
                                          : foundation::DateStyle::mediumDate;
  return NSString::make(foundation::dateText(moment, style, locale)).get();
}

Stock<id(id, SEL, id, NSUInteger, NSUInteger)> stockLocalizedString;
id NSDateFormatter_localizedString(id self, SEL command, id date, NSUInteger dateStyle,
                                   NSUInteger timeStyle) {
  if (!date) return nullptr;
  if (!isWordedHere(dateStyle, timeStyle))
    return stockLocalizedString(self, command, date, dateStyle, timeStyle);
  return worded(date, dateStyle);
}

// A format, locale or time zone that was set beside the styles is not looked at.
Stock<id(id, SEL, id)> stockStringFromDate;
id NSDateFormatter_stringFromDate(id self, SEL command, id date) {
  if (!date) return nullptr;
  const NSDateFormatter formatter(self);
  const auto dateStyle = formatter.dateStyle();
  if (!isWordedHere(dateStyle, formatter.timeStyle()))
    return stockStringFromDate(self, command, date);
  return worded(date, dateStyle);
}

id NSDate_description(id self, SEL) {
  const model::Date moment = {NSDate(self).timeIntervalSince1970()};
  return NSString::make(model::valueText(moment)).get();
}

}  // namespace

void correctDates() {
  replaceClassMethod("NSDateFormatter", "localizedStringFromDate:dateStyle:timeStyle:",
                     &NSDateFormatter_localizedString, stockLocalizedString);
  replaceMethod("NSDateFormatter", "stringFromDate:", &NSDateFormatter_stringFromDate,
                stockStringFromDate);
  replaceMethod("NSDate", "description", &NSDate_description);
}

}  // namespace desktop::faces
