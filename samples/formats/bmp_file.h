// SPDX-License-Identifier: MIT
//
// Windows bitmaps of 24 bits a pixel.
#pragma once

#include "samples/formats/byte_writer.h"
#include "samples/pictures/picture.h"

namespace samples {

Bytes bmpFile(const Picture& picture, int dotsPerInch);

}  // namespace samples
