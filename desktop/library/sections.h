// SPDX-License-Identifier: MIT
//
// The sections that a grid of photos is divided into, by the day, month or year of their dates.
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "desktop/library/facts_cache.h"
#include "desktop/library/library_item.h"
#include "foundation/locale.h"

namespace desktop::library {

// How closely a grid looks at the photos.
enum class ZoomLevel {
  moments,      // a section a day
  collections,  // a section a month
  years,        // a section a year
};

// Items `first` to `first + count - 1` of the list; never none.
struct Section {
  std::string title;  // "Sep 30, 2018", "September 2018" or "2018"
  std::size_t first = 0;
  std::size_t count = 0;
};

// The sections of items that are in the library's order, in the process's time zone. Takes time for
// each section, not for each item.
std::vector<Section> makeSections(std::span<const ItemPointer> items, ZoomLevel level,
                                  const foundation::Locale& locale);

// The places where items were taken, as far as their facts are known, each once, in order and
// joined by " · "; at most three, the last followed by "…" where there are more. Empty where none
// is known.
std::string placesOf(std::span<const ItemPointer> items, FactsCache& facts);

}  // namespace desktop::library
