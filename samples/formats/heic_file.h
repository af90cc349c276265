// SPDX-License-Identifier: MIT
//
// HEIC files (ISO/IEC 23008-12).
#pragma once

#include <string>

#include "model/result.h"
#include "samples/formats/byte_writer.h"
#include "samples/pictures/picture.h"

namespace samples {

struct HeicLook {
  int orientation = 1;    // EXIF; 3, 6 and 8 are turned by the container too
  Bytes exif = {};        // a TIFF block
  std::string xmp = {};   // empty for none
  Bytes profile = {};     // ICC
  bool exifLast = false;  // the metadata follow the pictures instead of preceding them
};

// Laid out as a phone does it: the picture in tiles of 512 by 512, and a thumbnail.
// Errors: an encoder that is missing or fails.
model::Result<Bytes> phoneHeicFile(const Picture& stored, const HeicLook& look);

// One picture as libheif writes it.
// Errors: libheif's own.
model::Result<Bytes> computerHeicFile(const Picture& stored, const HeicLook& look);

}  // namespace samples
