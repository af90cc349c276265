// SPDX-License-Identifier: MIT
//
// Everything that a TIFF structure says about its image, whether it is an Exif block or a file.
#pragma once

#include "media/image/ifd/tiff_ifd.h"
#include "model/value.h"

namespace media::image {

// Reads the structure's first IFD and what it points to: "{TIFF}", "Orientation", "{Exif}",
// "{GPS}", "{MakerApple}" or "{ExifAux}", then the embedded IPTC or Photoshop block, the XMP packet
// and the name of the colour profile. Returns the first IFD, none where there is none.
std::optional<Ifd> readTiffSections(TiffStructure& structure, model::Dictionary& properties);

// The same for a first IFD that was read before.
void readTiffSections(TiffStructure& structure, const Ifd& first, model::Dictionary& properties);

}  // namespace media::image
