// SPDX-License-Identifier: MIT
//
// Dates and numbers as the metadata formats spell them.
#pragma once

#include <string>
#include <string_view>

#include "model/civil_time.h"

namespace samples {

// Two or more digits, with leading zeros. REQUIRES: not negative.
std::string padded(int number, int digits);

inline std::string threeDigits(int number) {
  return padded(number, 3);
}

// "2019:08:21" with ":" between; any other separator likewise.
std::string dateText(const model::CivilTime& time, std::string_view separator);

// "10:57:23" with ":" between.
std::string clockText(const model::CivilTime& time, std::string_view separator);

// "2019:08:21 10:57:23"
std::string exifTime(const model::CivilTime& time);

// "+02:00" with ":" between; from minutes.
std::string zoneText(int minutes, std::string_view separator);

// "2019-08-21T10:57:23+0200"; the separator stands inside the zone.
std::string isoTime(const model::CivilTime& time, int zoneMinutes, std::string_view separator);

}  // namespace samples
