// SPDX-License-Identifier: MIT
#include "foundation/local_time.h"

#include <algorithm>
#include <cmath>
#include <ctime>

namespace foundation {

namespace {

constexpr double secondsOfADay = 86400;

// How far the zone's clocks are ahead of UTC at the date, in seconds.
double offsetAt(model::Date date) {
  // Within the range of model::civilTimeInUtc, so the date is a number that time_t holds.
  const model::Date bounded = model::dateFromUtc(model::civilTimeInUtc(date));
  const auto seconds = static_cast<std::time_t>(bounded.secondsSince1970);
  std::tm fields{};
  if (::localtime_r(&seconds, &fields) == nullptr) return 0;
  return static_cast<double>(fields.tm_gmtoff);
}

}  // namespace

model::CivilTime localTime(model::Date date) {
  return model::civilTimeInUtc({date.secondsSince1970 + offsetAt(date)});
}

// The two offsets that may hold are those of the days before and after: zones change theirs less
// often than daily. Reading them both avoids mktime's guess at what is ambiguous.
model::Date dateFromLocalTime(const model::CivilTime& time) {
  const double asUtc = model::dateFromUtc(time).secondsSince1970;
  const double before = asUtc - offsetAt({asUtc - secondsOfADay});
  const double after = asUtc - offsetAt({asUtc + secondsOfADay});
  for (const double candidate : {std::min(before, after), std::max(before, after)}) {
    if (candidate + offsetAt({candidate}) == asUtc) return {candidate};
  }
  return {before};
}

}  // namespace foundation
