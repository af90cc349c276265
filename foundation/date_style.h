// SPDX-License-Identifier: MIT
//
// How much of a moment a text tells, and at what length.
#pragma once

namespace foundation {

enum class DateStyle { shortDate, mediumDate };

enum class CalendarUnit { day, month, year };

}  // namespace foundation
