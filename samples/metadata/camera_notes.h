// SPDX-License-Identifier: MIT
//
// The maker notes of cameras with a system of lenses (Exif tag 0x927C): which lens, which body.
#pragma once

#include "samples/library/item.h"

namespace samples {

// Canon's: a directory alone, little-endian as the block around it. It stands as a program leaves
// it that has moved it: offsets count from its own first byte, and the footer says so.
Bytes canonMakerNote(const Photo& photo);

// Nikon's: a whole TIFF block behind a signature. What the lens says of itself has the older form,
// without a cipher.
Bytes nikonMakerNote(const Photo& photo);

// How many exposures the camera has made, and what of its serial number finds room in a note.
std::int64_t shutterCount(const Photo& photo);
std::int64_t canonSerialNumber(const Camera& camera);

}  // namespace samples
