// SPDX-License-Identifier: MIT
//
// The "{Exif}" section, from the Exif IFD. EXIF 2.31, 4.6.5.
#pragma once

#include <span>

#include "media/image/ifd/tag_table.h"

namespace media::image {

// The tags that are shown, in ascending order. The three time offsets are among them so that
// readers learn them; they are taken out again before properties are shown (time_offsets.h).
std::span<const TagRow> exifTags();

// Reads the Exif IFD into "{Exif}".
void readExifSection(TiffStructure& structure, const Ifd& exif, model::Dictionary& properties);

}  // namespace media::image
