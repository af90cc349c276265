// SPDX-License-Identifier: MIT
//
// The name of an ICC profile, of which no more is read than its table of tags and that one tag.
// ICC.1:2010, clause 7 and 9.2.41.
#pragma once

#include <optional>
#include <string>

#include "media/image/blocks/spliced_ranges.h"

namespace media::image {

// As iccProfileName(ByteView) of metadata_blocks.h, for a profile that is read on demand.
std::optional<std::string> iccProfileName(const BlockReader& profile);

}  // namespace media::image
