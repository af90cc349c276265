// SPDX-License-Identifier: MIT
//
// Bytes as base64 text (RFC 4648, section 4), as property lists and JSON carry them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/value.h"

namespace foundation {

// The bytes in base64, padded with "=", without line breaks.
std::string base64Text(const model::Data& data);

// The bytes that a base64 text stands for; none where it is no whole base64 text. Blanks and line
// breaks are no part of it: whoever allows them takes them out first.
std::optional<model::Data> dataFromBase64(std::string_view text);

}  // namespace foundation
