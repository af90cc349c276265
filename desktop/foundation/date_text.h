// SPDX-License-Identifier: MIT
//
// Dates for reading, as the platform's localised date styles write them.
#pragma once

#include <string>

#include "desktop/foundation/locale.h"
#include "model/civil_time.h"
#include "model/value.h"

namespace desktop::foundation {

enum class DateStyle { shortDate, mediumDate };

// Date in the given style and time in the medium style: in en_US
// "Sep 30, 2018 at 2:03:11 PM" (medium) and "9/30/18, 2:03:11 PM" (short). The time zone is the
// process's (TZ, else the system's).
std::string dateText(model::Date date, DateStyle style, const Locale& locale);

// What clocks in the process's time zone show at the date, and the moment at which they show a
// given time (the first of two where clocks are set back).
model::CivilTime localTime(model::Date date);
model::Date dateFromLocalTime(const model::CivilTime& time);

}  // namespace desktop::foundation
