// SPDX-License-Identifier: MIT
//
// What the room's limits cut of a file, so that it can be told. Readers note it in the dictionary
// that they fill; it is taken out again before that is shown.
#pragma once

#include <string>
#include <string_view>

#include "model/value.h"

namespace media::image {

inline constexpr std::string_view cutText = "a text longer than 64 KiB is cut";
inline constexpr std::string_view droppedMetadata = "some metadata is left out: it is too large";

// Notes one of those. Of several in one file the first stays.
void noteShortfall(model::Dictionary& properties, std::string_view what);

// Takes the note out; empty where there is none.
std::string takeShortfall(model::Dictionary& properties);

}  // namespace media::image
