// SPDX-License-Identifier: MIT
//
// The metadata blocks that a container has, wherever and in whatever order they lie in its file.
#pragma once

#include "io/source_reader.h"
#include "media/image/blocks/spliced_ranges.h"
#include "model/value.h"

namespace media::image {

struct EmbeddedBlocks {
  SplicedRanges exif;  // "Exif\0\0" may stand before it
  SplicedRanges photoshop;
  SplicedRanges xmp;
  SplicedRanges profile;
};

// Reads the blocks into the properties in the order in which they count, since of two values the
// first stays: EXIF, then IPTC, then XMP. Of the profile only the name is read.
void readEmbeddedBlocks(io::SourceReader& file, EmbeddedBlocks& blocks,
                        model::Dictionary& properties);

// All bytes of a block; none, which is noted, where they are more than the limit. Borrowed as those
// of SplicedRanges::view().
std::optional<io::ByteView> wholeBlock(io::SourceReader& file, SplicedRanges& block,
                                       model::Dictionary& properties);

// The TIFF structure in an Exif block that may have "Exif\0\0" before it.
io::ByteView withoutExifPrefix(io::ByteView block);

}  // namespace media::image
