// SPDX-License-Identifier: MIT
//
// Reports of properties and assets that somebody else has read: one JSON text in, one JSON line
// out.
#pragma once

#include <string>
#include <string_view>

#include "model/result.h"
#include "model/value.h"

namespace lumifact::tool {

enum class ParseKind { image, video };

// {"text":…,"table":…,"coordinates":…} of a properties dictionary, or {"text":…,"coordinates":…}
// of a media asset or null. The same in every locale; no line break at the end.
// Errors: a tree that is no dictionary or no asset.
model::Result<std::string> parseAnswer(ParseKind kind, model::Value tree);

// As above, for the JSON text of a tree. Errors: also text that is no JSON.
model::Result<std::string> parseAnswer(ParseKind kind, std::string_view json);

// {"error":"reason"}
std::string errorAnswer(std::string_view reason);

}  // namespace lumifact::tool
