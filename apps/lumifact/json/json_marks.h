// SPDX-License-Identifier: MIT
//
// The marked keys under which JSON carries what it has no form for; see json.h.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/result.h"
#include "model/value.h"

namespace lumifact::tool {

// Whether an object with this as its only key is read as something else.
bool isJsonMark(std::string_view key);

// What an object with one marked key stands for; "$dictionary" stands for its value.
// REQUIRES: isJsonMark(key). Errors: the value does not read.
model::Result<model::Value> markedValue(std::string_view key, model::Value value);

// A date as ISO 8601 in UTC, to the microsecond ("2018-09-30T12:03:11.25Z"); and read back.
std::string isoText(model::Date date);
std::optional<model::Date> dateFromIsoText(std::string_view text);

}  // namespace lumifact::tool
