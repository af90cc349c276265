// SPDX-License-Identifier: MIT
//
// Small ICC profiles (ICC.1:2010) of the two colour spaces that the samples use.
#pragma once

#include "samples/formats/byte_writer.h"

namespace samples {

enum class ColorSpace { sRgb, displayP3 };

// A display profile with three primaries and one curve. Its names are "sRGB IEC61966-2.1" and
// "Display P3".
Bytes iccProfile(ColorSpace space);

}  // namespace samples
