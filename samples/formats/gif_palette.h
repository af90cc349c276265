// SPDX-License-Identifier: MIT
//
// Reduction of pictures to 256 colours.
#pragma once

#include <cstdint>
#include <vector>

#include "samples/pictures/picture.h"

namespace samples {

// 256 colours that stand for those of the pictures: the median cut of Heckbert (1982).
std::vector<Rgb> medianCutPalette(const std::vector<Picture>& pictures);

// The number of the palette's colour for each pixel, with ordered dithering, in rows.
std::vector<std::uint8_t> paletteIndices(const Picture& picture, const std::vector<Rgb>& palette);

}  // namespace samples
