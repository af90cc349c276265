// SPDX-License-Identifier: MIT
//
// The "{GPS}" section, from the GPS IFD. EXIF 2.31, 4.6.6.
#pragma once

#include <span>

#include "media/image/ifd/tag_table.h"

namespace media::image {

// The tags that are shown, in ascending order.
std::span<const TagRow> gpsTags();

// Reads the GPS IFD into "{GPS}".
void readGpsSection(TiffStructure& structure, const Ifd& gps, model::Dictionary& properties);

}  // namespace media::image
