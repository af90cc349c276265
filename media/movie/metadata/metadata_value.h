// SPDX-License-Identifier: MIT
//
// The values of metadata items, each in the form of its kind of box.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "io/byte_view.h"
#include "model/value.h"

namespace media::movie {

// The payload of a "data" box: a well-known type (1 is UTF-8), a locale, and the value. Text
// becomes a string, numbers become integers or reals, all else data. QuickTime File Format,
// "Well-Known Types". None where the box is shorter than its type and locale, or text is empty.
std::optional<model::Value> typedValue(io::ByteView payload);

// The payload of a QuickTime user data text: the first of its runs of size, language and text. Old
// language codes mean Mac OS Roman, packed ISO codes UTF-8 or UTF-16. None where it is empty.
std::optional<model::Value> internationalText(io::ByteView payload);

// The payload of a 3GPP user data box: text; the year of "yrrc" as text; the place of "loci" as
// ISO 6709 text with altitude ("+48.8577+002.2950+035.000/"), as phones write it. None where it is
// empty, or the place is not on the earth.
std::optional<model::Value> threeGppValue(std::string_view key, io::ByteView payload);

// Degrees and metres as ISO 6709 text: "+48.8577+002.2950+035.000/".
std::string iso6709Text(double latitude, double longitude, double altitude);

}  // namespace media::movie
