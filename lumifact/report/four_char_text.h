// SPDX-License-Identifier: MIT
//
// Four-character codes as text.
#pragma once

#include <string>

#include "model/media_asset.h"

namespace lumifact {

// The bytes of the code, most significant first, up to the first zero: 0x61766331 is "avc1".
// Bytes beyond ASCII read as Latin-1.
std::string fourCharText(model::FourCharCode code);

}  // namespace lumifact
