// SPDX-License-Identifier: MIT
//
// The Exif (2.31) tags of a photo as its camera writes them.
#pragma once

#include "samples/library/item.h"
#include "samples/metadata/maker_note.h"

namespace samples {

// The first directory of a photo, with its Exif and GPS directories inside; `width` and `height`
// are the stored pixels. The phone's maker note is in it where the camera is a phone.
Directory photoDirectory(const Photo& photo, int width, int height, const BrightnessGrid& grid);

// The directory of a thumbnail, itself a JPEG.
Directory thumbnailDirectory(Bytes jpeg);

// Phones write big-endian tags, other cameras little-endian ones.
ByteOrder byteOrderOf(const Camera& camera);

}  // namespace samples
