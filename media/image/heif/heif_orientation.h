// SPDX-License-Identifier: MIT
//
// How a HEIF image is turned when it is shown.
#pragma once

#include <cstdint>
#include <optional>

#include "io/source_reader.h"
#include "media/image/heif/heif_meta.h"

namespace media::image {

// What the item's own turns and mirrorings come to, as of TIFF tag 0x0112; none where it has none,
// and only then an orientation in Exif counts.
std::optional<std::int64_t> heifOrientation(HeifMeta& meta, io::SourceReader& file,
                                            std::uint32_t item);

}  // namespace media::image
