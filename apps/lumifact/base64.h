// SPDX-License-Identifier: MIT
//
// Bytes as base64 text (RFC 4648, section 4), as JSON carries them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/value.h"

namespace lumifact::tool {

// Appends the bytes in base64, padded with "=".
void appendBase64(std::string& text, const model::Data& data);

// The bytes that a base64 text stands for; none where it is no whole base64 text.
std::optional<model::Data> dataFromBase64(std::string_view text);

}  // namespace lumifact::tool
