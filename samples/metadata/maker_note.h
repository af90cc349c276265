// SPDX-License-Identifier: MIT
//
// The phone's maker note (Exif tag 0x927C): a directory of its own, big-endian whatever holds it,
// with offsets from its own first byte.
#pragma once

#include <array>

#include "samples/library/item.h"

namespace samples {

// The brightness of 16 by 16 parts of a picture, 0 to 65535, in rows.
using BrightnessGrid = std::array<std::uint16_t, 256>;

BrightnessGrid brightnessGrid(const Picture& picture);

// REQUIRES: the photo's camera is a phone.
Bytes phoneMakerNote(const Photo& photo, const BrightnessGrid& grid);

}  // namespace samples
