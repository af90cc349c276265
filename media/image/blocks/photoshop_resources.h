// SPDX-License-Identifier: MIT
//
// Photoshop's image resources, of which only the IPTC datasets are read; thumbnails and paths are
// passed over. Adobe Photoshop File Formats Specification, "Image Resource Blocks".
#pragma once

#include "media/image/blocks/spliced_ranges.h"
#include "model/value.h"

namespace media::image {

// As readPhotoshopResources(ByteView, ...) of metadata_blocks.h, for resources read on demand.
void readPhotoshopResources(const BlockReader& resources, model::Dictionary& properties);

}  // namespace media::image
