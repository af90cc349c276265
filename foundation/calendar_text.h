// SPDX-License-Identifier: MIT
//
// Days, months and years for reading, without a time of day.
#pragma once

#include <string>

#include "foundation/date_style.h"
#include "foundation/local_time.h"
#include "foundation/locale.h"

namespace foundation {

// In en_US "Sep 30, 2018" (the platform's medium date style without a time), "September 2018",
// "2018"; otherwise in the customs of the locale.
std::string calendarText(const model::CivilTime& time, CalendarUnit unit, const Locale& locale);

}  // namespace foundation
