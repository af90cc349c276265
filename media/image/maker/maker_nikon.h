// SPDX-License-Identifier: MIT
//
// The maker note of Nikon's cameras: which lens, which body, how many exposures.
#pragma once

#include "io/byte_view.h"
#include "model/value.h"

namespace media::image {

// Reads "FlashCompensation", "ImageNumber", "LensID", "LensInfo", "LensModel" and "SerialNumber" of
// "{ExifAux}", and "Firmware", which such a camera writes as the software of "{TIFF}". Other notes,
// early ones of this maker among them, are left out.
void readNikonMakerNote(io::ByteView note, model::Dictionary& properties);

}  // namespace media::image
