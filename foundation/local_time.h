// SPDX-License-Identifier: MIT
//
// Clocks in the process's time zone: TZ, else the system's. Whoever changes TZ calls tzset().
#pragma once

#include "model/civil_time.h"
#include "model/value.h"

namespace foundation {

// What clocks show at the date, fractions of a second dropped. Dates outside the years 1 to 9999
// read as the nearest moment inside; NaN as 1970-01-01.
model::CivilTime localTime(model::Date date);

// The moment at which clocks show a given time: the first of two where clocks are set back; where
// they are set forward over it, as if they had not been.
model::Date dateFromLocalTime(const model::CivilTime& time);

}  // namespace foundation
