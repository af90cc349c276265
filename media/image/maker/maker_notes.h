// SPDX-License-Identifier: MIT
//
// Maker notes, whoever made the camera.
#pragma once

#include "media/image/maker/maker_note.h"
#include "model/value.h"

namespace media::image {

// Reads the note into the sections that the platform has for it: Apple's into "{MakerApple}",
// Canon's and Nikon's into "{ExifAux}". Notes of other makers are left out. REQUIRES: "{TIFF}" is
// read, since Canon's notes are told by the camera's make.
void readMakerNote(const MakerNote& note, model::Dictionary& properties);

}  // namespace media::image
