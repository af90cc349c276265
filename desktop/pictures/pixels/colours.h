// SPDX-License-Identifier: MIT
//
// From a file's own colours to sRGB.
#pragma once

#include <cstdint>
#include <span>

#include "desktop/pictures/pixels/picture.h"

namespace desktop::pictures {

// Straight alpha to premultiplied. The pixels are 0xAARRGGBB.
std::uint32_t premultiplied(std::uint32_t pixel);

// Converts a picture from the colours of an ICC profile to sRGB, in place. Leaves it as it is where
// the profile is empty, damaged, of a kind that is not known (tables, gray), or sRGB.
void convertToSrgb(std::span<const std::uint8_t> profile, Picture& picture);

// The same from the colour primaries of video (ISO/IEC 23091-2), with the tone curve of sRGB: 12
// is the wide gamut of phones. Others are left as they are.
void convertPrimariesToSrgb(int primaries, Picture& picture);

}  // namespace desktop::pictures
