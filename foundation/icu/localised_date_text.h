// SPDX-License-Identifier: MIT
//
// Dates by ICU's locale data, in the platform's styles.
#pragma once

#include <optional>
#include <string>

#include "foundation/date_style.h"
#include "foundation/locale.h"
#include "model/civil_time.h"

namespace foundation {

// What clocks show, in the style and the customs of the locale; none where ICU has no data. Blanks
// are plain where newer data has narrow ones. Thread-safe.
std::optional<std::string> localisedDateText(const model::CivilTime& time, DateStyle style,
                                             const Locale& locale);

// The day, the month with its year or the year, likewise.
std::optional<std::string> localisedCalendarText(const model::CivilTime& time, CalendarUnit unit,
                                                 const Locale& locale);

}  // namespace foundation
