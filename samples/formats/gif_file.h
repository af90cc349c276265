// SPDX-License-Identifier: MIT
//
// Animated GIF files (GIF89a).
#pragma once

#include <string_view>
#include <vector>

#include "samples/formats/byte_writer.h"
#include "samples/pictures/picture.h"

namespace samples {

// Frames of one size under one palette, repeated for ever. `delay` is in hundredths of a second.
// REQUIRES: at least one frame; the comment is under 256 bytes.
Bytes gifFile(const std::vector<Picture>& frames, int delay, std::string_view comment);

}  // namespace samples
