// SPDX-License-Identifier: MIT
//
// The "{TIFF}" section, from a structure's first IFD. TIFF 6.0, section 8; EXIF 2.31, 4.6.4.
#pragma once

#include <span>

#include "media/image/ifd/tag_table.h"

namespace media::image {

// The tags that are shown, in ascending order.
std::span<const TagRow> tiffTags();

// Reads the first IFD into "{TIFF}", and the orientation into the top level as well.
void readTiffSection(TiffStructure& structure, const Ifd& first, model::Dictionary& properties);

}  // namespace media::image
