// SPDX-License-Identifier: MIT
//
// Dates as movies write them into their metadata.
#pragma once

#include <optional>
#include <string_view>

#include "model/value.h"

namespace media::movie {

// ISO 8601 with a time and an offset from UTC: "2019-07-24T11:25:40+0300", "...+03:00", "...Z",
// seconds with a fraction. None for anything else, such as a bare year, which is no moment.
std::optional<model::Date> parseIsoDate(std::string_view text);

}  // namespace media::movie
