// SPDX-License-Identifier: MIT
#include "desktop/library/sections.h"

#include <algorithm>

#include "foundation/calendar_text.h"
#include "foundation/local_time.h"

namespace desktop::library {

namespace {

using foundation::CalendarUnit;

CalendarUnit unitOf(ZoomLevel level) {
  if (level == ZoomLevel::moments) return CalendarUnit::day;
  return level == ZoomLevel::collections ? CalendarUnit::month : CalendarUnit::year;
}

bool isSameUnit(const model::CivilTime& left, const model::CivilTime& right, CalendarUnit unit) {
  if (left.year != right.year || unit == CalendarUnit::year) return left.year == right.year;
  if (left.month != right.month || unit == CalendarUnit::month) return left.month == right.month;
  return left.day == right.day;
}

constexpr std::size_t mostPlaces = 3;

}  // namespace

std::vector<Section> makeSections(std::span<const ItemPointer> items, ZoomLevel level,
                                  const foundation::Locale& locale) {
  const CalendarUnit unit = unitOf(level);
  std::vector<Section> sections;
  for (std::size_t first = 0; first < items.size();) {
    const model::CivilTime start = foundation::localTime(items[first]->modificationDate);
    // Dates ascend, so the items of a section are found by halving what is left.
    const auto end =
        std::ranges::partition_point(items.subspan(first), [&](const ItemPointer& item) {
          return isSameUnit(start, foundation::localTime(item->modificationDate), unit);
        });
    // At least one, should clocks ever read differently from one time to the next.
    const auto count = std::max<std::ptrdiff_t>(end - items.subspan(first).begin(), 1);
    sections.push_back({.title = foundation::calendarText(start, unit, locale),
                        .first = first,
                        .count = static_cast<std::size_t>(count)});
    first += static_cast<std::size_t>(count);
  }
  return sections;
}

std::string placesOf(std::span<const ItemPointer> items, FactsCache& facts) {
  std::vector<std::string> places;
  for (const ItemPointer& item : items) {
    const FactsCache::Facts* known = facts.known(*item);
    if (known == nullptr || !*known || !(**known)->localizedGeoDescription) continue;
    const std::string& place = *(**known)->localizedGeoDescription;
    if (std::ranges::find(places, place) == places.end()) places.push_back(place);
    if (places.size() > mostPlaces) break;
  }
  std::string text;
  for (std::size_t index = 0; index < std::min(places.size(), mostPlaces); ++index) {
    if (index > 0) text += " · ";
    text += places[index];
  }
  if (places.size() > mostPlaces) text += "…";
  return text;
}

}  // namespace desktop::library
