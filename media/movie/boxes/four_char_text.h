// SPDX-License-Identifier: MIT
//
// Four-character codes as text.
#pragma once

#include <string>

#include "model/media_asset.h"

namespace media::movie {

// The four bytes, most significant first, as Latin-1; the text ends at a zero byte. "avc1".
std::string fourCharText(model::FourCharCode code);

}  // namespace media::movie
