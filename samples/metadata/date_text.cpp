// SPDX-License-Identifier: MIT
#include "samples/metadata/date_text.h"

#include <cstdlib>

namespace samples {

std::string padded(int number, int digits) {
  std::string text = std::to_string(number);
  if (text.size() < static_cast<std::size_t>(digits))
    text.insert(0, static_cast<std::size_t>(digits) - text.size(), '0');
  return text;
}

std::string dateText(const model::CivilTime& time, std::string_view separator) {
  std::string text = padded(time.year, 4);
  for (const int part : {time.month, time.day}) text.append(separator).append(padded(part, 2));
  return text;
}

std::string clockText(const model::CivilTime& time, std::string_view separator) {
  std::string text = padded(time.hour, 2);
  for (const int part : {time.minute, time.second}) text.append(separator).append(padded(part, 2));
  return text;
}

std::string exifTime(const model::CivilTime& time) {
  return dateText(time, ":") + " " + clockText(time, ":");
}

std::string zoneText(int minutes, std::string_view separator) {
  const int size = std::abs(minutes);
  return (minutes < 0 ? "-" : "+") + padded(size / 60, 2).append(separator) + padded(size % 60, 2);
}

std::string isoTime(const model::CivilTime& time, int zoneMinutes, std::string_view separator) {
  return dateText(time, "-") + "T" + clockText(time, ":") + zoneText(zoneMinutes, separator);
}

}  // namespace samples
