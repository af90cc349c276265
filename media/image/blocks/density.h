// SPDX-License-Identifier: MIT
//
// The density of an image at the top level of its properties.
#pragma once

#include <cstdint>

#include "model/value.h"

namespace media::image {

// Sets "DPIWidth" and "DPIHeight", in dots per inch, from "XResolution", "YResolution" and
// "ResolutionUnit" of "{TIFF}" (1 none, 2 inch, 3 centimetre; absent counts as inch). Leaves both
// untouched where there is no "{TIFF}", no unit of length, or no resolution above 0.
void setDensityFromTiff(model::Dictionary& properties);

// Sets both keys, rounded, from pixels a metre.
void setDensityFromMetres(std::uint32_t x, std::uint32_t y, model::Dictionary& properties);

}  // namespace media::image
