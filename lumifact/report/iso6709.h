// SPDX-License-Identifier: MIT
//
// Places as videos carry them: "+48.8577+002.2950+035.000/" (ISO 6709, annex H).
#pragma once

#include <optional>
#include <string_view>

namespace lumifact {

// The three numbers as they are written, signs and leading zeros kept. Borrowed from the text.
struct Iso6709Location {
  std::string_view latitude;
  std::string_view longitude;
  std::string_view altitude;
};

// The first place with an altitude anywhere in the text: what
// "([+-][0-9.]+)([+-][0-9.]+)([+-][0-9.]+)/" finds. Takes time linear in the text's length.
std::optional<Iso6709Location> findIso6709Location(std::string_view text);

}  // namespace lumifact
