// SPDX-License-Identifier: MIT
//
// The maker note of Apple's phones: "Apple iOS", an IFD of its own, property lists in some fields.
#pragma once

#include "io/byte_view.h"
#include "model/value.h"

namespace media::image {

// Reads the bytes of a maker note (EXIF tag 0x927C) into "{MakerApple}", keyed by decimal tag
// numbers. Notes of other makers, and fields that cannot be read, are left out. Fractions are
// single-precision reals; bytes without a type are the property list they hold, else data.
void readAppleMakerNote(io::ByteView note, model::Dictionary& properties);

}  // namespace media::image
