// SPDX-License-Identifier: MIT
//
// The maker note of Canon's cameras: which lens, which body, whose.
#pragma once

#include "media/image/ifd/tiff_ifd.h"
#include "media/image/maker/maker_note.h"
#include "model/value.h"

namespace media::image {

// Reads "Firmware", "FlashCompensation", "LensID", "LensInfo", "LensModel", "OwnerName" and
// "SerialNumber" of "{ExifAux}". What lies outside the note is left out, and so is all of a note
// that was moved or cut such that its offsets lead elsewhere. There is no "ImageNumber": these
// cameras number files, not exposures.
void readCanonMakerNote(const MakerNote& note, model::Dictionary& properties);

// The same for the note's directory in a structure of its own, as CR3 has it.
void readCanonDirectory(TiffStructure& structure, const Ifd& ifd, model::Dictionary& properties);

}  // namespace media::image
