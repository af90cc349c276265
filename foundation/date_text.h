// SPDX-License-Identifier: MIT
//
// Dates for reading, as the platform's localised date styles write them.
#pragma once

#include <string>

#include "foundation/date_style.h"
#include "foundation/local_time.h"
#include "foundation/locale.h"
#include "model/value.h"

namespace foundation {

// Date in the given style and time in the medium style: in en_US
// "Sep 30, 2018 at 2:03:11 PM" (medium) and "9/30/18, 2:03:11 PM" (short). The time zone is that
// of localTime.
std::string dateText(model::Date date, DateStyle style, const Locale& locale);

}  // namespace foundation
