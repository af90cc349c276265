// SPDX-License-Identifier: MIT
//
// The offsets from UTC that belong to the times of "{Exif}". The phone's framework does not show
// them, but the point in time at which a photo was taken depends on them.
#pragma once

#include <optional>
#include <string>

#include "model/value.h"

namespace media::image {

// Takes "OffsetTime", "OffsetTimeOriginal" and "OffsetTimeDigitized" out of "{Exif}", and the
// section too where nothing is left in it. Returns the offset of DateTimeOriginal as it is
// written ("+02:00"), or none. EXIF 2.31, 4.6.5, tag 0x9011.
std::optional<std::string> takeTimeOffsets(model::Dictionary& properties);

}  // namespace media::image
