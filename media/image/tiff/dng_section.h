// SPDX-License-Identifier: MIT
//
// The "{DNG}" section of digital negatives. DNG 1.4, chapters 4 and 5.
#pragma once

#include <span>

#include "media/image/ifd/tag_table.h"

namespace media::image {

// The tags that are shown, in ascending order: those that are texts and numbers. Blocks (profiles'
// tables, opcodes, digests, private data) are not.
std::span<const TagRow> dngTags();

// Reads the tags of a DNG file's first IFD and of its main image's into "{DNG}". Other files have
// none.
void readDngSection(TiffStructure& structure, const Ifd& first, const Ifd& image,
                    model::Dictionary& properties);

}  // namespace media::image
